#include <objbase.h>
#include <windows.h>

#include <string>

#include "Check.h"
#include "ServerRun.h"
#include "WideText.h"

int wmain(int count, wchar_t** arguments) {
  if (FAILED(CoInitializeEx(nullptr, COINIT_MULTITHREADED))) return 2;
  const int failed = quorb::RunTests(count > 1 ? quorb::NarrowText(arguments[1]) : std::string());
  quorb::EndSharedServer();
  CoUninitialize();
  return failed == 0 ? 0 : 1;
}
