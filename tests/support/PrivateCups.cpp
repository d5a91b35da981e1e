#include "tests/support/PrivateCups.h"

#include <cups/cups.h>
#include <fcntl.h>
#include <grp.h>
#include <netinet/in.h>
#include <pwd.h>
#include <signal.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

extern char** environ;

namespace {

namespace fs = std::filesystem;

std::string Slurp(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

bool Spit(const std::string& path, const std::string& text, fs::perms perms) {
    {
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        if (!(out << text)) return false;
    }
    std::error_code ec;
    fs::permissions(path, perms, ec);
    return !ec;
}

// The program's path: on PATH, else in the folders of the administration tools.
std::string Tool_Find(const std::string& name) {
    if (name.find('/') != std::string::npos) return access(name.c_str(), X_OK) == 0 ? name : "";
    const char* path = std::getenv("PATH");
    std::string dirs = std::string(path ? path : "/usr/bin:/bin") + ":/usr/sbin:/sbin:/usr/local/sbin";
    std::stringstream s(dirs);
    for (std::string dir; std::getline(s, dir, ':');) {
        if (dir.empty()) continue;
        const std::string candidate = dir + "/" + name;
        if (access(candidate.c_str(), X_OK) == 0) return candidate;
    }
    return "";
}

// The program's arguments as exec takes them.
std::vector<char*> Args(const std::vector<std::string>& argv) {
    std::vector<char*> args;
    for (const std::string& a : argv) args.push_back(const_cast<char*>(a.c_str()));
    args.push_back(nullptr);
    return args;
}

// Starts the program with standard input from /dev/null and its outputs into
// the files; the process id, or -1 with errors telling why.
pid_t Spawn(const std::vector<std::string>& argv, const std::string& out, const std::string& err,
            std::string& errors) {
    const std::string program = Tool_Find(argv.at(0));
    if (program.empty()) {
        errors = argv[0] + " was not found on PATH, /usr/sbin or /sbin";
        return -1;
    }
    std::vector<char*> args = Args(argv);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    posix_spawn_file_actions_addopen(&actions, 2, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    pid_t pid = -1;
    const int rc = posix_spawn(&pid, program.c_str(), &actions, nullptr, args.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (rc != 0) {
        errors = program + " could not be started: " + std::strerror(rc);
        return -1;
    }
    return pid;
}

// As Spawn, for a server that is to end with the test process: should the
// test die without its teardown (a crash, a timeout's kill), the server is
// sent SIGTERM instead of living on.
pid_t Spawn_Bound(const std::vector<std::string>& argv, const std::string& out, std::string& errors) {
    const std::string program = Tool_Find(argv.at(0));
    if (program.empty()) {
        errors = argv[0] + " was not found on PATH, /usr/sbin or /sbin";
        return -1;
    }
    std::vector<char*> args = Args(argv);
    const pid_t parent = getpid();
    const pid_t pid = fork();
    if (pid < 0) {
        errors = std::string("fork: ") + std::strerror(errno);
        return -1;
    }
    if (pid == 0) {
        // Only calls that are safe between fork and exec.
        if (prctl(PR_SET_PDEATHSIG, SIGTERM) != 0 || getppid() != parent) _exit(127);
        const int in = open("/dev/null", O_RDONLY);
        const int log = open(out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        if (in < 0 || log < 0 || dup2(in, 0) < 0 || dup2(log, 1) < 0 || dup2(log, 2) < 0) _exit(127);
        execve(program.c_str(), args.data(), environ);
        _exit(127);
    }
    return pid;
}

int ExitStatus(int status) { return WIFEXITED(status) ? WEXITSTATUS(status) : -1; }

// A port of localhost that nobody listens on just now.
int FreePort() {
    const int fd = socket(AF_INET, SOCK_STREAM, 0);
    if (fd < 0) return -1;
    sockaddr_in addr{};
    addr.sin_family = AF_INET;
    addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    addr.sin_port = 0;
    socklen_t len = sizeof addr;
    int port = -1;
    if (bind(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) == 0 &&
        getsockname(fd, reinterpret_cast<sockaddr*>(&addr), &len) == 0)
        port = ntohs(addr.sin_port);
    close(fd);
    return port;
}

// Whether something listens on the port of localhost.
bool Answers(int port) {
    const int fd = socket(AF_INET, SOCK_STREAM, 0);
    if (fd < 0) return false;
    sockaddr_in addr{};
    addr.sin_family = AF_INET;
    addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    addr.sin_port = htons(static_cast<uint16_t>(port));
    const bool ok = connect(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) == 0;
    close(fd);
    return ok;
}

void Env_Save(const char* name, std::string& value, bool& had) {
    const char* v = std::getenv(name);
    had = v != nullptr;
    value = v ? v : "";
}

void Env_Restore(const char* name, const std::string& value, bool had) {
    if (had)
        setenv(name, value.c_str(), 1);
    else
        unsetenv(name);
}

// The lines of the error log that tell of errors, else its last lines.
std::string LogReason(const std::string& log) {
    std::vector<std::string> errors, all;
    std::stringstream s(log);
    for (std::string line; std::getline(s, line);) {
        if (line.empty()) continue;
        all.push_back(line);
        // The system's data folder of a server without the full print
        // system has no banners; that error does not keep it from running.
        if (line.rfind("E ", 0) == 0 && line.find("banner") == std::string::npos) errors.push_back(line);
    }
    const std::vector<std::string>& lines = errors.empty() ? all : errors;
    std::string text;
    for (std::size_t i = lines.size() > 8 ? lines.size() - 8 : 0; i < lines.size(); ++i) text += "\n  " + lines[i];
    return text;
}

// A filter that hands the document on unchanged: the file named by argument
// 6, else standard input.
constexpr const char* kPassThrough =
    "#!/bin/sh\n"
    "if [ -n \"$6\" ]; then exec cat -- \"$6\"; fi\n"
    "exec cat\n";

// A queue description whose only filter is the pass-through, for the
// documents the tests send: PDF and plain text.
std::string PassThroughPpd(const std::string& filter) {
    return "*PPD-Adobe: \"4.3\"\n"
           "*FormatVersion: \"4.3\"\n"
           "*FileVersion: \"1.0\"\n"
           "*LanguageVersion: English\n"
           "*LanguageEncoding: ISOLatin1\n"
           "*PCFileName: \"PASSTHRU.PPD\"\n"
           "*Manufacturer: \"Torvane Tests\"\n"
           "*Product: \"(Pass-through)\"\n"
           "*ModelName: \"Pass-through\"\n"
           "*ShortNickName: \"Pass-through\"\n"
           "*NickName: \"Pass-through\"\n"
           "*PSVersion: \"(3010.000) 0\"\n"
           "*LanguageLevel: \"3\"\n"
           "*ColorDevice: False\n"
           "*DefaultColorSpace: Gray\n"
           "*FileSystem: False\n"
           "*Throughput: \"1\"\n"
           "*LandscapeOrientation: Plus90\n"
           "*TTRasterizer: Type42\n"
           "*cupsFilter: \"application/pdf 0 " +
           filter +
           "\"\n"
           "*cupsFilter: \"text/plain 0 " +
           filter +
           "\"\n"
           "*OpenUI *PageSize: PickOne\n"
           "*OrderDependency: 10 AnySetup *PageSize\n"
           "*DefaultPageSize: A4\n"
           "*PageSize A4: \"<</PageSize[595 842]>>setpagedevice\"\n"
           "*CloseUI: *PageSize\n"
           "*DefaultImageableArea: A4\n"
           "*ImageableArea A4: \"0 0 595 842\"\n"
           "*DefaultPaperDimension: A4\n"
           "*PaperDimension A4: \"595 842\"\n";
}

}  // namespace

ToolResult Tool_Run(const std::vector<std::string>& argv) {
    ToolResult result;
    char pattern[] = "/tmp/torvane-tool-XXXXXX";
    if (!mkdtemp(pattern)) {
        result.errors = std::string("mkdtemp: ") + std::strerror(errno);
        return result;
    }
    const std::string dir = pattern, out = dir + "/out", err = dir + "/err";
    const pid_t pid = Spawn(argv, out, err, result.errors);
    if (pid > 0) {
        int status = 0;
        while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
        }
        result.status = ExitStatus(status);
        result.output = Slurp(out);
        result.errors = Slurp(err);
    }
    std::error_code ec;
    fs::remove_all(dir, ec);
    return result;
}

PrivateCups::PrivateCups() {
    Env_Save("CUPS_SERVER", savedServer_, hadServer_);
    Env_Save("LPDEST", savedLpdest_, hadLpdest_);
    Env_Save("PRINTER", savedPrinter_, hadPrinter_);
    if (!Start()) Stop();
}

PrivateCups::~PrivateCups() {
    Stop();
    std::error_code ec;
    if (!dir_.empty()) fs::remove_all(dir_, ec);
}

bool PrivateCups::Start() {
    std::string pattern = (fs::temp_directory_path() / "torvane-cups-XXXXXX").string();
    if (!mkdtemp(pattern.data())) {
        why_ = std::string("no temporary folder: ") + std::strerror(errno);
        return false;
    }
    dir_ = pattern;
    // The server runs its filter as an unprivileged user when started as
    // root: that user reads the filter and the queue description here.
    chmod(dir_.c_str(), 0755);
    std::error_code ec;
    for (const char* sub : {"spool", "tmp", "cache", "state", "log", "out"}) fs::create_directory(dir_ + "/" + sub, ec);

    const int port = FreePort();
    if (port <= 0) {
        why_ = "no free port on localhost";
        return false;
    }
    server_ = "localhost:" + std::to_string(port);

    const std::string policy =
        "<Policy default>\n"
        "  JobPrivateAccess default\n"
        "  JobPrivateValues default\n"
        "  SubscriptionPrivateAccess default\n"
        "  SubscriptionPrivateValues default\n"
        "  <Limit All>\n"
        "    Order deny,allow\n"
        "  </Limit>\n"
        "</Policy>\n";
    const std::string conf = "Listen " + server_ +
                             "\n"
                             "Browsing No\n"
                             "BrowseLocalProtocols none\n"
                             "DefaultShared No\n"
                             "WebInterface No\n"
                             "LogLevel warn\n"
                             "MaxLogSize 0\n"
                             "DefaultAuthType None\n"
                             "<Location />\n"
                             "  Order allow,deny\n"
                             "  Allow localhost\n"
                             "</Location>\n" +
                             policy;
    std::string files = "ServerRoot " + dir_ + "\nRequestRoot " + dir_ + "/spool\nTempDir " + dir_ + "/tmp\nCacheDir " +
                        dir_ + "/cache\nStateDir " + dir_ + "/state\nErrorLog " + dir_ + "/log/error_log\nAccessLog " +
                        dir_ + "/log/access_log\nPageLog " + dir_ + "/log/page_log\nFileDevice Yes\nSandboxing Relaxed\n";
    if (geteuid() == 0) {
        // The server refuses to run its filters as root: the print system's
        // own user where there is one, else nobody.
        const passwd* user = getpwnam("lp");
        if (!user) user = getpwnam("nobody");
        const group* grp = getgrnam("lp");
        if (!grp) grp = getgrnam("nogroup");
        if (!user || !grp) {
            why_ = "running as root, and neither the user lp nor nobody (or the group lp nor nogroup) exists";
            return false;
        }
        files += "User " + std::string(user->pw_name) + "\nGroup " + grp->gr_name + "\nSystemGroup root\n";
    } else {
        const group* grp = getgrgid(getegid());
        if (grp) files += "SystemGroup " + std::string(grp->gr_name) + "\n";
    }
    const fs::perms readable = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read |
                               fs::perms::others_read;
    const fs::perms program = readable | fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    if (!Spit(dir_ + "/cupsd.conf", conf, readable) || !Spit(dir_ + "/cups-files.conf", files, readable) ||
        !Spit(dir_ + "/passthrough", kPassThrough, program) ||
        !Spit(dir_ + "/passthrough.ppd", PassThroughPpd(dir_ + "/passthrough"), readable)) {
        why_ = "the configuration could not be written into " + dir_;
        return false;
    }

    std::string errors;
    pid_ = Spawn_Bound({"cupsd", "-f", "-c", dir_ + "/cupsd.conf", "-s", dir_ + "/cups-files.conf"},
                       dir_ + "/log/cupsd.out", errors);
    if (pid_ < 0) {
        why_ = errors + " (the package cups-daemon holds it)";
        return false;
    }
    setenv("CUPS_SERVER", server_.c_str(), 1);
    unsetenv("LPDEST");
    unsetenv("PRINTER");
    // libcups keeps the server it found and its connection: name the new one.
    cupsSetServer(server_.c_str());

    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(15);
    std::string lpstat;
    while (std::chrono::steady_clock::now() < deadline) {
        int status = 0;
        if (waitpid(pid_, &status, WNOHANG) == pid_) {
            pid_ = -1;
            why_ = "cupsd stopped at once (" +
                   (WIFEXITED(status) ? "exit status " + std::to_string(WEXITSTATUS(status))
                                      : "signal " + std::to_string(WTERMSIG(status))) +
                   ")" + LogReason(ErrorLog() + "\n" + Slurp(dir_ + "/log/cupsd.out"));
            return false;
        }
        // The port first, cheaply; then the scheduler itself, through its client.
        if (!Answers(port)) {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
            continue;
        }
        const ToolResult r = Tool_Run({"lpstat", "-h", server_, "-r"});
        if (r.status < 0 && r.output.empty() && r.errors.find("not found") != std::string::npos) {
            why_ = r.errors + " (the package cups-client holds it)";
            return false;
        }
        if (r.output.find("scheduler is running") != std::string::npos) return true;
        lpstat = r.output + r.errors;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    why_ = "cupsd did not answer on " + server_ + " within 15 s (lpstat -r: " + lpstat + ")" +
           LogReason(ErrorLog() + "\n" + Slurp(dir_ + "/log/cupsd.out"));
    return false;
}

void PrivateCups::Stop() {
    if (pid_ > 0) {
        kill(pid_, SIGTERM);
        int status = 0;
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
        while (waitpid(pid_, &status, WNOHANG) == 0) {
            if (std::chrono::steady_clock::now() > deadline) {
                kill(pid_, SIGKILL);
                waitpid(pid_, &status, 0);
                break;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        pid_ = -1;
    }
    Env_Restore("CUPS_SERVER", savedServer_, hadServer_);
    Env_Restore("LPDEST", savedLpdest_, hadLpdest_);
    Env_Restore("PRINTER", savedPrinter_, hadPrinter_);
    // Forget the private server: the next call finds the server anew.
    cupsSetServer(nullptr);
}

bool PrivateCups::Admin(const std::vector<std::string>& argv) {
    const ToolResult r = Tool_Run(argv);
    if (r.status == 0) return true;
    why_ = argv[0] + " failed (status " + std::to_string(r.status) + "): " + r.output + r.errors +
           LogReason(ErrorLog());
    return false;
}

bool PrivateCups::AddQueue(const std::string& name) {
    // A queue without a description (a raw one) delivers nothing to a file:
    // the server starts no process for such a job and only marks it done.
    // The pass-through filter writes the document into the file unchanged.
    return Admin({"lpadmin", "-h", server_, "-p", name, "-E", "-v", "file://" + Output(name), "-P",
                  dir_ + "/passthrough.ppd"});
}

bool PrivateCups::SetDefault(const std::string& name) { return Admin({"lpadmin", "-h", server_, "-d", name}); }

bool PrivateCups::StopQueue(const std::string& name) { return Admin({"cupsdisable", "-h", server_, name}); }

std::string PrivateCups::Output(const std::string& name) const { return dir_ + "/out/" + name + ".prn"; }

bool PrivateCups::WaitIdle(const std::string& name, std::chrono::milliseconds timeout) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        cups_job_t* jobs = nullptr;
        const int n = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, name.c_str(), 0, CUPS_WHICHJOBS_ACTIVE);
        cupsFreeJobs(n < 0 ? 0 : n, jobs);
        if (n == 0) return true;
        if (std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

std::vector<QueueJob> PrivateCups::Jobs(const std::string& name) const {
    cups_job_t* jobs = nullptr;
    const int n = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, name.c_str(), 0, CUPS_WHICHJOBS_ALL);
    std::vector<QueueJob> list;
    for (int i = 0; i < n; ++i) list.push_back({jobs[i].id, jobs[i].title ? jobs[i].title : "", jobs[i].state});
    cupsFreeJobs(n < 0 ? 0 : n, jobs);
    std::sort(list.begin(), list.end(), [](const QueueJob& a, const QueueJob& b) { return a.id < b.id; });
    return list;
}

std::string PrivateCups::ErrorLog() const { return Slurp(dir_ + "/log/error_log"); }
