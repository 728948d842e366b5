# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# commongui_add_test(<name> LABEL <subsystem> SOURCES <files...> [LIBS <targets...>])
set(COMMONGUI_TEST_ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen"
    "COMMONGUI_TEST_SOURCE_DIR=${PROJECT_SOURCE_DIR}/tests"
    "COMMONGUI_CORPUS_DIR=${COMMONGUI_CORPUS_DIR}"
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/sanitizers/lsan.supp:print_suppressions=0"
    "UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1"
    "ASAN_OPTIONS=detect_leaks=1")

function(commongui_add_test name)
    cmake_parse_arguments(arg "" "LABEL" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE CommonGUI::CommonGUI Qt::Test commongui_testsupport ${arg_LIBS})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES LABELS "${arg_LABEL}"
        ENVIRONMENT "${COMMONGUI_TEST_ENVIRONMENT}"
        TIMEOUT 300)
endfunction()
