// Owns the test library's precompiled headers, which the test programs share.
