// The automation server of the tests: it offers a small spreadsheet under the class identifier of its command
// line, and ends when it is told to quit, or by itself after five minutes.

#include <objbase.h>
#include <oleauto.h>
#include <windows.h>

#include "ApplicationObject.h"
#include "ServerClipboard.h"
#include "ServerModes.h"

namespace {

constexpr UINT kLongestLife = 300000;

void CALLBACK EndServer(HWND, UINT, UINT_PTR, DWORD) {
  PostQuitMessage(0);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  CLSID identifier = {};
  if (count != 2 || FAILED(CLSIDFromString(arguments[1], &identifier))) return 2;
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 3;
  RegisterMessageFilter();
  ServerWindow();
  auto* application = new ApplicationObject();
  SetObjectToDisconnect(application);
  DWORD registration = 0;
  if (FAILED(RegisterActiveObject(application, identifier, ACTIVEOBJECT_STRONG, &registration))) return 4;
  SetTimer(nullptr, 0, kLongestLife, EndServer);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  RevokeActiveObject(registration, nullptr);
  CoDisconnectObject(application, 0);
  application->Release();
  CoUninitialize();
  return 0;
}
