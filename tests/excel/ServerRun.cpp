#include "ServerRun.h"

#include <windows.h>

#include <memory>

#include "Check.h"
#include "WideText.h"

namespace quorb {

namespace {

constexpr wchar_t kProgramIdentifier[] = L"Excel.Application";
constexpr int kTries = 500;
constexpr DWORD kPause = 20;

std::unique_ptr<ServerRun> shared;

// The server stands beside the test program.
std::wstring CommandLine() {
  wchar_t path[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  std::wstring folder = path;
  folder.resize(folder.find_last_of(L'\\') + 1);
  CLSID identifier = {};
  wchar_t text[64] = {};
  CLSIDFromProgID(kProgramIdentifier, &identifier);
  StringFromGUID2(identifier, text, 64);
  return L"\"" + folder + L"sheet_server.exe\" " + text;
}

bool WaitUntil(bool isRunning) {
  for (int tries = 0; tries < kTries; ++tries) {
    ComObject app;
    const int number = RunningApplication(kProgramIdentifier, app).number;
    if (isRunning ? number == kFaultNone : number == kFaultNoApplication) return true;
    Sleep(kPause);
  }
  return false;
}

}  // namespace

ServerRun::ServerRun() {
  CHECK(WaitUntil(false));
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  PROCESS_INFORMATION started = {};
  std::wstring command = CommandLine();
  CHECK(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                       &started) != 0);
  CloseHandle(started.hThread);
  handle_ = started.hProcess;
  process_ = started.dwProcessId;
  CHECK(WaitUntil(true));
  CHECK(RunningApplication(kProgramIdentifier, app_).Good());
}

void ServerRun::Kill() {
  TerminateProcess(handle_, 1);
  WaitForSingleObject(handle_, INFINITE);
}

void ServerRun::End() {
  if (handle_ == nullptr) return;
  static_cast<void>(app_.Call(L"Quit"));
  app_ = ComObject();
  constexpr DWORD kTimeToEnd = 2000;
  if (WaitForSingleObject(handle_, kTimeToEnd) != WAIT_OBJECT_0) Kill();
  CloseHandle(handle_);
  handle_ = nullptr;
  CHECK(WaitUntil(false));
}

void ServerRun::AddBook(const std::string& name, const std::string& caption, int windows) {
  CHECK(app_.Call(L"TestAddBook", CallArguments(name).Add(caption.empty() ? name : caption).Add(windows))
            .Good());
}

ComObject ServerRun::Cell(int row, int column) {
  ComObject cells, cell;
  CHECK(app_.Follow(L"Cells", cells).Good());
  CHECK(cells.Follow(L"Item", cell, CallArguments(row).Add(column)).Good());
  return cell;
}

void ServerRun::SetNumber(int row, int column, double number) {
  CHECK(Cell(row, column).Put(L"Value", number).Good());
}

void ServerRun::SetText(int row, int column, const std::string& text) {
  CHECK(Cell(row, column).Put(L"Value", text).Good());
}

void ServerRun::SetFormula(int row, int column, const std::string& formula) {
  CHECK(Cell(row, column).Put(L"Formula", formula).Good());
  Log();
}

void ServerRun::Select(int row, int column) {
  CHECK(Cell(row, column).Call(L"Select").Good());
}

void ServerRun::Activate(const std::string& name) {
  CHECK(app_.Call(L"TestActivate", CallArguments(name)).Good());
}

void ServerRun::ShowSheet(const std::string& name) {
  CHECK(app_.Call(L"TestSheet", CallArguments(name)).Good());
}

void ServerRun::Mode(const std::string& kind, const std::string& member, int amount) {
  CHECK(app_.Call(L"TestMode", CallArguments(kind).Add(member).Add(amount)).Good());
}

void ServerRun::RejectFor(int milliseconds) {
  CHECK(app_.Call(L"TestReject", CallArguments(milliseconds)).Good());
}

std::string ServerRun::State() {
  std::string state = "unknown";
  CHECK(app_.GetText(L"TestState", state).Good());
  return state;
}

std::string ServerRun::Log() {
  std::string log = "unknown";
  CHECK(app_.GetText(L"TestLog", log).Good());
  return log;
}

ServerRun& FreshServer() {
  if (!shared) shared = std::make_unique<ServerRun>();
  CHECK(shared->App().Call(L"TestReset").Good());
  return *shared;
}

void EndSharedServer() {
  shared.reset();
}

}  // namespace quorb
