#include "RealOffice.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <thread>

#include "OfficePlugin.h"

namespace quorb {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

std::string CommandLineOf(pid_t process) {
  std::ifstream file("/proc/" + std::to_string(process) + "/cmdline", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The letter for the state of a process or thread; empty when it is gone. It stands behind the name, which
// may hold blanks and brackets.
std::string StateIn(const std::string& statusFile) {
  std::ifstream status(statusFile);
  const std::string text{std::istreambuf_iterator<char>(status), {}};
  const std::size_t behindName = text.rfind(") ");
  return behindName == std::string::npos ? "" : text.substr(behindName + 2, 1);
}

bool AllThreadsStand(pid_t process) {
  std::error_code gone;
  for (const auto& thread :
       std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/task", gone))
    if (const std::string state = StateIn(thread.path().string() + "/stat"); !state.empty() && state != "T")
      return false;
  return true;
}

OfficeUser* OpenUser(const std::string& programDirectory) {
  static OpenUserFunction open = nullptr;
  if (open == nullptr) {
    std::atomic<unsigned> pulse{0};
    std::string problem;
    // The plug-in's way brings the office's libraries in.
    if (OpenOfficeSession(QUORB_CALC_PLUGIN, programDirectory, pulse, problem) == nullptr) {
      std::cerr << problem << '\n';
      return nullptr;
    }
    void* library = dlopen(QUORB_OFFICE_USER, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
      std::cerr << dlerror() << '\n';
      return nullptr;
    }
    open = reinterpret_cast<OpenUserFunction>(dlsym(library, kOpenUserSymbol));
  }
  return open == nullptr ? nullptr : open();
}

void WriteLocale(const std::string& profile, const std::string& locale) {
  std::filesystem::create_directories(profile + "/user");
  std::ofstream file(profile + "/user/registrymodifications.xcu");
  file << R"(<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry" xmlns:xs="http://www.w3.org/2001/XMLSchema" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">
<item oor:path="/org.openoffice.Office.Common/Misc"><prop oor:name="ShowTipOfTheDay" oor:op="fuse"><value>false</value></prop></item>
<item oor:path="/org.openoffice.Setup/Product"><prop oor:name="ooSetupLastVersion" oor:op="fuse"><value>99.0</value></prop></item>
)";
  if (!locale.empty())
    file
        << R"(<item oor:path="/org.openoffice.Setup/L10N"><prop oor:name="ooSetupSystemLocale" oor:op="fuse"><value>)"
        << locale << R"(</value></prop></item>
<item oor:path="/org.openoffice.Office.Linguistic/General"><prop oor:name="UILocale" oor:op="fuse"><value>)"
        << locale.substr(0, 2) << R"(</value></prop></item>
<item oor:path="/org.openoffice.Setup/L10N"><prop oor:name="ooLocale" oor:op="fuse"><value>)"
        << locale.substr(0, 2) << "</value></prop></item>\n";
  file << "</oor:items>\n";
}

}  // namespace

RealOffice::RealOffice(const std::string& display, const std::string& locale) {
  std::array<char, 32> name{"/tmp/quorb-office-XXXXXX"};
  home_ = mkdtemp(name.data());
  profile_ = home_ + "/profile";
  socketDirectory_ = home_ + "/sockets";
  std::filesystem::create_directories(socketDirectory_);
  WriteLocale(profile_, locale);
  Start(display);
  const auto deadline = steady_clock::now() + std::chrono::seconds(60);
  while (!FindSocket() && steady_clock::now() < deadline)
    std::this_thread::sleep_for(milliseconds(30));
  if (running_.process == 0 || !TakeInHand()) std::cerr << "The office did not come up.\n";
}

RealOffice::~RealOffice() {
  user_.reset();
  Kill();
  std::error_code ignored;
  std::filesystem::remove_all(home_, ignored);
}

void RealOffice::Start(const std::string& display) {
  starter_ = fork();
  if (starter_ != 0) return;
  setpgid(0, 0);
  const int log = open((home_ + "/log").c_str(), O_CREAT | O_WRONLY, 0600);
  dup2(log, 1);
  dup2(log, 2);
  setenv("HOME", home_.c_str(), 1);
  setenv("SAL_USE_VCLPLUGIN", display.empty() ? "svp" : "gen", 1);
  if (!display.empty()) setenv("DISPLAY", display.c_str(), 1);
  const std::string profile = "-env:UserInstallation=file://" + profile_;
  if (display.empty())
    execlp("soffice", "soffice", "--headless", "--invisible", "--norestore", "--nologo", profile.c_str(),
           nullptr);
  else
    execlp("soffice", "soffice", "--norestore", "--nologo", "--nodefault", profile.c_str(), nullptr);
  _exit(127);
}

// Its socket among those of this machine; a hard link in the test's own directory stands for it.
bool RealOffice::FindSocket() {
  for (const std::string& path : OfficeSocketPaths(OfficeSocketDirectories(), getuid())) {
    RunningOffice office;
    if (LookAtSocket(path, getuid(), milliseconds(500), office) != SocketAnswer::office) continue;
    if (CommandLineOf(office.process).find(profile_) == std::string::npos) continue;
    const std::string own = socketDirectory_ + path.substr(path.rfind('/'));
    if (link(path.c_str(), own.c_str()) != 0) return false;
    running_ = office;
    return true;
  }
  return false;
}

bool RealOffice::TakeInHand() {
  // The user's connection must not end the test when its office is killed; its threads inherit this.
  sigset_t pipe, before;
  sigemptyset(&pipe);
  sigaddset(&pipe, SIGPIPE);
  pthread_sigmask(SIG_BLOCK, &pipe, &before);
  const bool taken = TakeUnderThisMask();
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
  return taken;
}

bool RealOffice::TakeUnderThisMask() {
  userPipe_ = "quorb_user_" + std::to_string(running_.process);
  if (!TellOffice(running_, getuid(), "--accept=pipe,name=" + userPipe_ + ";urp;", milliseconds(5000)))
    return false;
  std::unique_ptr<OfficeUser> user(OpenUser(running_.programDirectory));
  if (user == nullptr) return false;
  const SheetFault fault = user->Connect(userPipe_, running_.programDirectory);
  if (!fault.Good()) {
    std::cerr << fault.description << '\n';
    return false;
  }
  user_ = std::move(user);
  return true;
}

CalcLinkOptions RealOffice::Options() const {
  CalcLinkOptions options;
  options.socketDirectories = {socketDirectory_};
  options.pluginPath = QUORB_CALC_PLUGIN;
  // Two processors may be busy with other tests.
  options.pollPatience = milliseconds(2000);
  options.attachPatience = milliseconds(5000);
  return options;
}

// A thread may run on for a moment behind the signal.
void RealOffice::Freeze() {
  if (running_.process <= 0) return;
  kill(running_.process, SIGSTOP);
  const auto deadline = steady_clock::now() + milliseconds(5000);
  while (!AllThreadsStand(running_.process) && steady_clock::now() < deadline)
    std::this_thread::sleep_for(milliseconds(1));
}

void RealOffice::Thaw() {
  if (running_.process > 0) kill(running_.process, SIGCONT);
}

void RealOffice::Kill() {
  if (running_.process > 0) kill(running_.process, SIGKILL);
  if (starter_ > 0) {
    kill(-starter_, SIGKILL);
    waitpid(starter_, nullptr, 0);
  }
  // The socket is left behind, as after a crash; only this office's own is taken away with the object.
  while (Runs())
    std::this_thread::sleep_for(milliseconds(5));
  if (!running_.socketPath.empty()) unlink(running_.socketPath.c_str());
  for (const std::string& name : {userPipe_, "quorb_" + std::to_string(running_.process)})
    unlink(("/tmp/OSL_PIPE_" + std::to_string(getuid()) + "_" + name).c_str());
  running_.process = starter_ = 0;
}

bool RealOffice::Runs() const {
  if (running_.process <= 0) return false;
  const std::string state = StateIn("/proc/" + std::to_string(running_.process) + "/stat");
  return !state.empty() && state != "Z";
}

}  // namespace quorb
