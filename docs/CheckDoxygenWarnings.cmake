# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# Fails when doxygen warned while building the API reference: an undocumented
# public member, a broken reference or a bad command in a doc comment.
if(NOT EXISTS "${WARNINGS}")
    message(FATAL_ERROR "${WARNINGS} is missing: build the docs target first")
endif()
file(READ "${WARNINGS}" text)
string(STRIP "${text}" text)
if(NOT text STREQUAL "")
    message(FATAL_ERROR "doxygen warnings:\n${text}")
endif()
