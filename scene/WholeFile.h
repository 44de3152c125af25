#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace quorb {

/// Writes a file in one piece, `head` and then `body`, which may be empty: the bytes go to a new file beside
/// it that then takes its name, so that a full disk leaves either the old file or none, never half of one. A
/// path that names a device or a pipe is written straight. False on failure, with `error` a sentence for the
/// user that names the path (UTF-8).
bool WriteWholeFile(const std::string& path, std::span<const std::uint8_t> head,
                    std::span<const std::uint8_t> body, std::string& error);

}  // namespace quorb
