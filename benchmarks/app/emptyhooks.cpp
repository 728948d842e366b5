// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
extern "C" {
__attribute__((visibility("default"), no_instrument_function)) void
__cyg_profile_func_enter(void *, void *)
{
}
__attribute__((visibility("default"), no_instrument_function)) void
__cyg_profile_func_exit(void *, void *)
{
}
}
