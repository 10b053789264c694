#pragma once

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace mirolen {

/// What a folder may hold beside regular files. They are the test's own, and go with the folder.
class SpecialFiles {
 public:
  explicit SpecialFiles(const std::string& folder) {
    const auto add = [&](const char* name, auto make) {
      const std::string path = folder + "/" + name;
      if (make(path)) paths_.push_back(path);
    };
    add("pipe", [](const std::string& path) { return mkfifo(path.c_str(), 0600) == 0; });
    add("directory", [](const std::string& path) { return std::filesystem::create_directory(path); });
    add("socket", make_socket);
    // The numbers of a disk that is full and of one that has no end; only an administrator may make them.
    add("full", [](const std::string& path) { return make_device(path, 7); });
    add("endless", [](const std::string& path) { return make_device(path, 5); });
    for (const std::string& path : std::vector(paths_)) {
      std::filesystem::create_symlink(path, path + ".link");
      paths_.push_back(path + ".link");
    }
  }

  /// Each of them, and a link to each.
  const std::vector<std::string>& paths() const { return paths_; }
  /// Whether they are still what they were.
  bool stand() const {
    return std::ranges::all_of(paths_, [](const std::string& path) {
      return std::filesystem::exists(path) && !std::filesystem::is_regular_file(path);
    });
  }

 private:
  static bool make_device(const std::string& path, unsigned number) {
    constexpr unsigned memory = 1;
    return mknod(path.c_str(), S_IFCHR | 0600, makedev(memory, number)) == 0;
  }
  static bool make_socket(const std::string& path) {
    sockaddr_un address{AF_UNIX, {}};
    if (path.size() >= sizeof address.sun_path) return false;
    path.copy(address.sun_path, path.size());
    const int handle = socket(AF_UNIX, SOCK_STREAM, 0);
    const bool made = bind(handle, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(handle);
    return made;
  }

  std::vector<std::string> paths_;
};

}  // namespace mirolen
