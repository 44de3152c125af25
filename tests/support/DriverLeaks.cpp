// What the graphics driver and the font configuration keep until the process ends; the leak checker of the
// sanitizer build asks for this list by this name.

extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)

extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  return "leak:libfontconfig\nleak:_dri.so\nleak:libEGL\nleak:libGLX\nleak:libLLVM\n";
}
