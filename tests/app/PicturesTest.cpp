// The pictures the program carries (data/app/BMP_data): every component and machine picture is an SVG with a viewBox.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

std::string Folder() { return std::string(TORVANE_SOURCE_DIR) + "/data/app/BMP_data/"; }

std::vector<std::string> PictureNames() {
    std::vector<std::string> names;
    for (int i = 1; i <= 10; ++i) names.push_back("rotoro" + std::to_string(i));
    for (int i = 1; i <= 8; ++i) names.push_back("rotost" + std::to_string(i));
    names.push_back("sttoro1");
    for (int i = 1; i <= 4; ++i) names.push_back("sttost" + std::to_string(i));
    names.push_back("sp_ex1");
    names.push_back("sp_ex2");
    names.push_back("motor");
    names.push_back("empty");
    for (int i = 1; i <= 9; ++i) names.push_back("machine" + std::to_string(i));
    return names;
}

}  // namespace

TEST(Pictures, EveryComponentAndMachinePictureIsAnSvgWithAViewBox) {
    const std::vector<std::string> names = PictureNames();
    ASSERT_EQ(names.size(), 36u);
    for (const std::string& name : names) {
        const std::string path = Folder() + name + ".svg";
        std::ifstream in(path, std::ios::binary);
        ASSERT_TRUE(in.good()) << "missing " << path;
        const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        const bool svg_start = text.rfind("<svg", 0) == 0 || text.rfind("<?xml", 0) == 0;
        EXPECT_TRUE(svg_start) << path << " does not start like an SVG file";
        EXPECT_NE(text.find("<svg"), std::string::npos) << path;
        EXPECT_NE(text.find("viewBox"), std::string::npos) << path << " has no viewBox";
    }
}
