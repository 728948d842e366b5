// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "FunctionTrace_p.h"

#include "commongui_export.h"

namespace FunctionTrace {
FILE *traceFile = nullptr;
int traceFree = 0;
bool traceEnabled = false;
bool traceAllowed = false;
int traceFileCounter = 0;
bool traceFileOpen = false;
}

using namespace FunctionTrace;

// The hooks run on every call of an instrumented tool: one flag test when off,
// nothing allocated, nothing instrumented.
extern "C" {

COMMONGUI_EXPORT void __cyg_profile_func_enter(void *this_fn, void *call_site)
    __attribute__((no_instrument_function));
COMMONGUI_EXPORT void __cyg_profile_func_exit(void *this_fn, void *call_site)
    __attribute__((no_instrument_function));

static inline void writeRecord(void *fn) __attribute__((no_instrument_function, always_inline));
static inline void writeRecord(void *fn)
{
    if (!traceEnabled || !traceFile || !traceFree)
        return;
    traceFree = 0;
    // "%p" prints its own 0x: every record starts with 0x0x on purpose.
    fprintf(traceFile, "0x%p\n", fn);
    traceFree = 1;
}

void __cyg_profile_func_enter(void *this_fn, void *)
{
    writeRecord(this_fn);
}

void __cyg_profile_func_exit(void *this_fn, void *)
{
    writeRecord(this_fn);
}

}
