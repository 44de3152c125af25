#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "TemporaryDirectory.h"

namespace quorb {

/// What a program left behind.
struct ProgramOutcome {
  int status = -1;  ///< exit status, -1 when it was ended by a signal
  std::string out, err;
};

inline std::string ContentsOfFile(const std::string& path) {
  std::stringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

/// A directory of its own in which programs run; arguments are written as in a shell.
class ProgramRun {
 public:
  ProgramOutcome Run(const std::string& program, const std::string& arguments) const {
    const std::string command = "cd '" + directory.File("") + "' && '" + program + "' " + arguments +
                                " >stdout.txt 2>stderr.txt </dev/null";
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ContentsOfFile(directory.File("stdout.txt")),
            ContentsOfFile(directory.File("stderr.txt"))};
  }

  void Write(const std::string& name, const std::string& text) const {
    std::ofstream(directory.File(name), std::ios::binary) << text;
  }

  std::string File(const std::string& name) const { return directory.File(name); }

 private:
  TemporaryDirectory directory;
};

/// A data file with this formula and these rows, each already with its TABs.
inline std::string DataFileText(const std::string& formula, const std::string& rows) {
  return "From: \tBook\tSheet\t" + formula +
         "\t1.0000000000\tField title\tDate 2025/01/01 00:00:00\tmark\t\r\n" + rows;
}

}  // namespace quorb
