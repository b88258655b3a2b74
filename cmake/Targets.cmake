# A room of the house is a folder under src/ and a static library of the same name. Its links are its levels;
# tools/lint holds the includes against the same table.
function(tessaro_room name)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    add_library(${name} STATIC ${sources})
    set_target_properties(${name} PROPERTIES AUTOMOC ON OUTPUT_NAME tessaro-${name})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${ARGN})
endfunction()

# Drawings are made in forked children, which may start threads of their own.
set(TESSARO_TEST_ENVIRONMENT
    QT_QPA_PLATFORM=offscreen
    LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/lsan.supp
    ASAN_OPTIONS=detect_odr_violation=0
    TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/tsan.supp:die_after_fork=0)

# A test program links only the room it tests, so that a room that leans on a higher one fails to link. A third
# argument names another main than the usual one.
function(tessaro_test name room)
    set(support ${ARGN} test-support)
    list(GET support 0 support)
    add_executable(${name} ${name}.cpp)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${room} ${support} GTest::gtest)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 900
        ENVIRONMENT "${TESSARO_TEST_ENVIRONMENT}")
endfunction()
