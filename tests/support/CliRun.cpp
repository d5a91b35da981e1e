// Opens with its header: tests/support/CliRun.h.
#include "tests/support/CliRun.h"

#include <sys/wait.h>

#include <cstdlib>

std::string Quote(const std::string& s) {
    std::string q = "'";
    for (const char c : s) q += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return q + "'";
}

CliRun RunCli(const TempDir& dir, const std::string& args) {
    const std::string out = dir.File("stdout.txt"), err = dir.File("stderr.txt");
    const std::string command = "TORVANE_APP_PATH=" + Quote(dir.Path()) + " " + Quote(TORVANE_CLI) + " " + args +
                                " >" + Quote(out) + " 2>" + Quote(err) + " </dev/null";
    const int status = std::system(command.c_str());
    CliRun r;
    r.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    r.out = ReadFile(out);
    r.err = ReadFile(err);
    return r;
}
