// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <cstdio>

// Process-wide trace state shared by the hooks and DebugCrashHandler.
namespace FunctionTrace {
extern FILE *traceFile;
extern int traceFree;
extern bool traceEnabled;
extern bool traceAllowed;
extern int traceFileCounter;
// False once traceFile was closed; the pointer itself is kept.
extern bool traceFileOpen;
}
