// Builds the catalogue database from its SQL text at build time:
//   make_catalogue OUT.db FILE.sql...
#include <cstdio>
#include <string>
#include <vector>

#include "selection/CatalogueBuild.h"

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: make_catalogue OUT.db FILE.sql...\n");
        return 2;
    }
    std::string error;
    if (Catalogue_Build(argv[1], std::vector<std::string>(argv + 2, argv + argc), error)) return 0;
    std::fprintf(stderr, "make_catalogue: %s\n", error.c_str());
    return 1;
}
