# Installs the build tree to a fresh prefix, moves the prefix elsewhere (the package must not
# remember where it was installed), then configures, builds and runs the example application
# against it with nothing but CMAKE_PREFIX_PATH, as an application developer would.
#
# A sanitized library needs its sanitizer runtime in every program that loads it, so for a
# sanitized build (SANITIZE) the example is compiled and linked with the same compiler and
# -fsanitize flags; otherwise it gets no flags at all.

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        string(REPLACE ";" " " command "${ARGN}")
        message(FATAL_ERROR "${command}\nfailed (${result}):\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect_file path)
    if(NOT EXISTS "${path}")
        message(FATAL_ERROR "not installed: ${path}")
    endif()
endfunction()

function(expect_output text)
    string(FIND "${output}" "${text}" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "expected \"${text}\" in the output:\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/installed" --config "${CONFIG}")
file(RENAME "${WORK_DIR}/installed" "${WORK_DIR}/moved")
set(prefix "${WORK_DIR}/moved")

# The layout an application relies on.
expect_file("${prefix}/${LIBDIR}/cmake/PvProductProperties/PvProductPropertiesConfig.cmake")
expect_file("${prefix}/${LIBDIR}/cmake/PvProductProperties/PvProductPropertiesConfigVersion.cmake")
expect_file("${prefix}/${INCLUDEDIR}/PvProductProperties/PvProductTypeDescription.h")
expect_file("${prefix}/${INCLUDEDIR}/PvProductProperties/pvproductproperties_export.h")
expect_file("${prefix}/${INCLUDEDIR}/PvEnumWrapper/PvEnumWrapper.h")
expect_file("${prefix}/${INCLUDEDIR}/PvCore/PvSingleton.h")
expect_file("${prefix}/${LIBDIR}/libPvProductProperties.so.${SOVERSION}")
expect_file("${prefix}/${DATADIR}/PvProductProperties/translations/pvproductproperties_en.qm")
if(EXISTS "${prefix}/${INCLUDEDIR}/PvProductProperties/PvPageConstraintImpl.h")
    message(FATAL_ERROR "a private header was installed")
endif()

# The installed tool finds its libraries from where it lies.
run("${prefix}/${BINDIR}/pvproducts" --data "${DATA_ROOT}" list)
expect_output("photobook-hardcover-a4")

set(configure_args -G "${GENERATOR}" "-DCMAKE_PREFIX_PATH=${prefix}")
if(COMPILER_LAUNCHER)
    list(APPEND configure_args "-DCMAKE_CXX_COMPILER_LAUNCHER=${COMPILER_LAUNCHER}")
endif()
if(SANITIZE)
    list(APPEND configure_args
        "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}"
        "-DCMAKE_CXX_FLAGS=-fsanitize=${SANITIZE} -fno-omit-frame-pointer"
        "-DCMAKE_EXE_LINKER_FLAGS=-fsanitize=${SANITIZE}")
endif()
run("${CMAKE_COMMAND}" -S "${EXAMPLE_DIR}" -B "${WORK_DIR}/example" ${configure_args})
run("${CMAKE_COMMAND}" -L -N "${WORK_DIR}/example")
expect_output("PvProductProperties_DIR:PATH=${prefix}/${LIBDIR}/cmake/PvProductProperties")
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/example")

run("${WORK_DIR}/example/catalogue-summary" "${DATA_ROOT}" --pages 24 --language en)
expect_output("photobook-hardcover-a4\n  pages (24): cover_back, spine, cover_front, ")
expect_output("  page naming: Calendar\n")
expect_output("  elements: Background, ")
expect_output(" products\n")
