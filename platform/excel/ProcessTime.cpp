#include "ProcessTime.h"

#include <windows.h>

namespace quorb {

namespace {

constexpr std::int64_t kTicksOfMicrosecond = 10;

std::int64_t Ticks(const FILETIME& time) {
  return (static_cast<std::int64_t>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
}

}  // namespace

std::int64_t ProcessorMicroseconds(unsigned long process) {
  HANDLE handle = process != 0 ? OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process) : nullptr;
  if (handle == nullptr) return 0;
  FILETIME created = {}, ended = {}, kernel = {}, user = {};
  const bool known = GetProcessTimes(handle, &created, &ended, &kernel, &user) != 0;
  CloseHandle(handle);
  return known ? (Ticks(kernel) + Ticks(user)) / kTicksOfMicrosecond : 0;
}

}  // namespace quorb
