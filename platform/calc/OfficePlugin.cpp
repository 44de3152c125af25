#include "OfficePlugin.h"

#include <dlfcn.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <string_view>

namespace quorb {
namespace {

constexpr char kPluginName[] = "quorb-calc.so";

std::string ProgramDirectory() {
  std::array<char, PATH_MAX> path{};
  const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
  if (length <= 0) return ".";
  const std::string_view text(path.data(), static_cast<std::size_t>(length));
  return std::string(text.substr(0, text.rfind('/')));
}

// A library stays loaded for the life of the process: its threads and types cannot be taken back.
void* Load(const std::string& path, int flags, std::string& problem) {
  void* library = dlopen(path.c_str(), flags);
  if (library == nullptr) problem = dlerror();
  return library;
}

// The plug-in is linked to nothing of the office's: it finds these in the process.
bool LoadOfficeLibraries(const std::string& programDirectory, std::string& problem) {
  for (const char* name :
       {"libuno_sal.so.3", "libuno_salhelpergcc3.so.3", "libuno_cppu.so.3", "libuno_cppuhelpergcc3.so.3"})
    if (Load(programDirectory + "/" + name, RTLD_NOW | RTLD_GLOBAL, problem) == nullptr) return false;
  return true;
}

}  // namespace

std::string OfficePluginPath() {
  const std::string here = ProgramDirectory();
  for (const std::string& directory : {here, here + "/../lib/QuorbExcelPro"}) {
    std::string path = directory + "/" + kPluginName;
    if (access(path.c_str(), R_OK) == 0) return path;
  }
  return "";
}

std::unique_ptr<OfficeSession> OpenOfficeSession(const std::string& pluginPath,
                                                 const std::string& programDirectory,
                                                 std::atomic<unsigned>& pulse, std::string& problem) {
  static OpenSessionFunction open = nullptr;
  if (open == nullptr) {
    if (pluginPath.empty()) {
      problem = std::string("The file ") + kPluginName + " is not beside the program.";
      return nullptr;
    }
    if (!LoadOfficeLibraries(programDirectory, problem)) return nullptr;
    void* plugin = Load(pluginPath, RTLD_NOW | RTLD_LOCAL, problem);
    if (plugin == nullptr) return nullptr;
    open = reinterpret_cast<OpenSessionFunction>(dlsym(plugin, kOpenSessionSymbol));
    if (open == nullptr) {
      problem = "The plug-in " + pluginPath + " is of another kind.";
      return nullptr;
    }
  }
  return std::unique_ptr<OfficeSession>(open(&pulse));
}

}  // namespace quorb
