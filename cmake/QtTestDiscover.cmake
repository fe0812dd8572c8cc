# Runs a Qt Test executable with -functions and writes one CTest test per test
# function, so that every behaviour has its own entry in `ctest -N` and runs
# in a process of its own (the program's module-level state never carries
# over from one test to the next). A program built for another processor is
# listed and run through EMULATOR (a command line); LABEL may name several
# labels separated by blanks; ENV adds variables to the tests' environment
# (NAME=VALUE, separated by blanks).
separate_arguments(emulator UNIX_COMMAND "${EMULATOR}")
separate_arguments(labels UNIX_COMMAND "${LABEL}")
list(JOIN labels ";" labels)
separate_arguments(environment UNIX_COMMAND "QT_QPA_PLATFORM=offscreen ${ENV}")
list(JOIN environment ";" environment)
set(command "")
foreach(word IN LISTS emulator ITEMS ${EXE})
    string(APPEND command " [=[${word}]=]")
endforeach()
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${emulator} ${EXE} -functions
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
            "add_test([=[${NAME}.${fn}]=]${command} [=[${fn}]=])\n"
            "set_tests_properties([=[${NAME}.${fn}]=] PROPERTIES ENVIRONMENT \"${environment}\" TIMEOUT ${TIMEOUT} LABELS \"${labels}\")\n")
    endif()
endforeach()
file(WRITE "${OUT}" "${content}")
