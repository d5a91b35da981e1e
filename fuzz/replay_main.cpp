// Runs a fuzz target without libFuzzer: over every file of a corpus folder,
// then over generated inputs made by mutating those files at random with a
// fixed seed, so that each run is the same.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

std::vector<std::string> ReadCorpus(const char* dir) {
    std::vector<std::string> inputs;
    std::error_code ec;
    for (const auto& entry : std::filesystem::directory_iterator(dir, ec)) {
        std::ifstream in(entry.path(), std::ios::binary);
        inputs.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    if (inputs.empty()) inputs.emplace_back();
    return inputs;
}

std::string Mutate(std::string s, std::mt19937& rng) {
    const int edits = 1 + static_cast<int>(rng() % 8);
    for (int k = 0; k < edits; ++k) {
        switch (rng() % 4) {
            case 0:
                if (!s.empty()) s[rng() % s.size()] = static_cast<char>(rng());
                break;
            case 1: s.insert(s.begin() + (s.empty() ? 0 : rng() % (s.size() + 1)), static_cast<char>(rng())); break;
            case 2:
                if (!s.empty()) s.erase(rng() % s.size(), 1 + rng() % 16);
                break;
            default: s.resize(rng() % (s.size() + 2)); break;
        }
    }
    return s;
}

void Run(const std::string& s) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(s.data()), s.size());
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> corpus = ReadCorpus(argc > 1 ? argv[1] : ".");
    for (const std::string& s : corpus) Run(s);
    std::mt19937 rng(12345);
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 2000;
    for (int i = 0; i < rounds; ++i) Run(Mutate(corpus[rng() % corpus.size()], rng));
    std::printf("%zu corpus inputs and %d generated inputs ran\n", corpus.size(), rounds);
    return 0;
}
