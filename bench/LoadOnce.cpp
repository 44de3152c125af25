// Seconds that the first LoadPlot() of a process takes on a data file: load_once FILE

#include <chrono>
#include <cstdio>

#include "CommExcl.h"
#include "FakeLoaderWindow.h"
#include "RunState.h"
#include "SystemFiles.h"

int main(int argc, char** argv) {
  using namespace quorb;
  if (argc != 2) return 2;
  SystemFiles files;
  SetFileAccess(&files);
  FakeLoaderWindow window;
  SetLoaderWindow(&window);
  CommandFileMode = 1;
  CommandFileName = argv[1];
  const auto start = std::chrono::steady_clock::now();
  LoadPlot();
  std::printf("%.6f\n", std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  return LastLoad().rows > 0 ? 0 : 1;
}
