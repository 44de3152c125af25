#pragma once

#include <windows.h>

#include <string>

/// How the server misbehaves. A mode holds for the member of that name, or for every one when it has none;
/// members whose name begins with "Test" are always served.
struct ServerMode {
  /// "busy" 50290, "rejected" and "disconnected" as plain results; "busy exception"; "refuse" 1004;
  /// "clipboard" an exception of its own words; "hang" sleeps and "compute" computes for `amount`
  /// milliseconds, once; "die" ends the process in the call; "disconnect" cuts the clients off; "" serves.
  std::wstring kind;
  std::wstring member;
  /// Calls for which it holds, or milliseconds.
  int amount = 0;
};

void SetMode(const ServerMode& mode);

/// Rejects every call of another process for that time, by the message filter.
void RejectCallsFor(int milliseconds);
void RegisterMessageFilter();

/// What the mode makes of a call: a plain result, a thrown ServerFailure, or S_OK.
HRESULT ApplyMode(const std::wstring& member);

/// The application object, to be cut off from its clients.
void SetObjectToDisconnect(IUnknown* object);
