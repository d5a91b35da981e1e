#include "core/DataFolders.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

bool IsFolder(const fs::path& path) {
    std::error_code ec;
    return fs::is_directory(path, ec);
}

// The data the executable finds: the installed share folder, else its own.
std::string Shipped_Folder(const FolderHints& hints) {
    const std::string installed = Installed_DataFolder(hints.exeFolder);
    return installed.empty() ? hints.exeFolder : installed;
}

}  // namespace

FolderHints FolderHints_Read() {
    FolderHints hints{Variable("TORVANE_APP_PATH"), Variable("XDG_DATA_HOME"), Variable("HOME"), ""};
    std::error_code ec;
    const fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    hints.exeFolder = ec ? fs::current_path(ec).string() : exe.parent_path().string();
    return hints;
}

std::string Installed_DataFolder(const std::string& exeFolder) {
    const fs::path bin(exeFolder);
    if (bin.filename() != "bin") return "";
    const fs::path share = bin.parent_path() / "share" / "torvane";
    std::error_code ec;
    return fs::is_regular_file(share / "Series.db", ec) ? share.string() : "";
}

std::string User_DataFolder(const FolderHints& hints) {
    if (fs::path(hints.xdgDataHome).is_absolute()) return (fs::path(hints.xdgDataHome) / "Torvane").string();
    if (fs::path(hints.home).is_absolute()) return (fs::path(hints.home) / ".local/share/Torvane").string();
    return "";
}

bool UserData_Prepare(const std::string& shipped, const std::string& user) {
    std::error_code ec;
    fs::create_directories(user, ec);
    if (!IsFolder(user)) return false;
    fs::recursive_directory_iterator it(shipped, fs::directory_options::skip_permission_denied, ec);
    for (; !ec && it != fs::recursive_directory_iterator(); it.increment(ec)) {
        std::error_code each;
        const fs::path target = fs::path(user) / fs::relative(it->path(), shipped, each);
        if (each) continue;
        if (it->is_directory(each)) {
            fs::create_directories(target, each);
        } else if (it->is_regular_file(each) && !fs::exists(fs::symlink_status(target, each))) {
            fs::copy_file(it->path(), target, fs::copy_options::skip_existing, each);
        }
    }
    return true;
}

std::string AppPath_For(const FolderHints& hints) {
    if (!hints.appPathVariable.empty()) return hints.appPathVariable;
    const std::string installed = Installed_DataFolder(hints.exeFolder);
    if (installed.empty()) return hints.exeFolder;
    const std::string user = User_DataFolder(hints);
    if (user.empty() || !UserData_Prepare(installed, user)) return installed;
    return user;
}

std::string Examples_Folder(const FolderHints& hints, const std::string& appPath) {
    for (const fs::path& base : {fs::path(appPath), fs::path(Shipped_Folder(hints))})
        if (IsFolder(base / "examples")) return (base / "examples").string();
    return "";
}
