# Runs a Qt Test executable with -functions and writes one CTest test per test
# function, so that every behaviour has its own entry in `ctest -N` and runs
# in a process of its own (the program's module-level state never carries
# over from one test to the next).
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${EXE} -functions
    OUTPUT_VARIABLE listing
    RESULT_VARIABLE rc
    TIMEOUT 60)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${EXE} -functions failed (${rc}):\n${listing}")
endif()
string(REPLACE "\n" ";" lines "${listing}")
set(content "")
foreach(line IN LISTS lines)
    string(STRIP "${line}" line)
    if(line MATCHES "^([A-Za-z_][A-Za-z0-9_]*)\\(\\)$")
        set(fn "${CMAKE_MATCH_1}")
        string(APPEND content
            "add_test([=[${NAME}.${fn}]=] [=[${EXE}]=] [=[${fn}]=])\n"
            "set_tests_properties([=[${NAME}.${fn}]=] PROPERTIES ENVIRONMENT \"QT_QPA_PLATFORM=offscreen\" TIMEOUT ${TIMEOUT} LABELS ${LABEL})\n")
    endif()
endforeach()
file(WRITE "${OUT}" "${content}")
