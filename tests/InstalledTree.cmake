# Installs the build into an empty folder and builds and runs the example host against it, found as a package and
# through pkg-config.
# Called with -DSOURCE -DBUILD -DCOMPILER; the host takes the database to load and the one to save.

set(prefix "${BUILD}/installed")
set(host "${BUILD}/installed-host")
file(REMOVE_RECURSE "${prefix}" "${host}")

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\n${output}")
    endif()
endfunction()

run("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${prefix}")
run("${CMAKE_COMMAND}" -G Ninja -S "${SOURCE}/examples/host" -B "${host}" "-DCMAKE_CXX_COMPILER=${COMPILER}"
    -DCMAKE_BUILD_TYPE=Debug "-DCMAKE_PREFIX_PATH=${prefix}")
run("${CMAKE_COMMAND}" --build "${host}")

find_program(PKG_CONFIG NAMES pkg-config pkgconf)
if(PKG_CONFIG)
    file(GLOB_RECURSE description "${prefix}/zedobjparam.pc" "${prefix}/*/zedobjparam.pc")
    if(NOT description)
        message(FATAL_ERROR "no zedobjparam.pc was installed")
    endif()
    get_filename_component(folder "${description}" DIRECTORY)
    run("${CMAKE_COMMAND}" -E env "PKG_CONFIG_PATH=${folder}" "${PKG_CONFIG}" --exists --print-errors zedobjparam)
    execute_process(COMMAND "${CMAKE_COMMAND}" -E env "PKG_CONFIG_PATH=${folder}" "${PKG_CONFIG}" --cflags --libs zedobjparam
                    OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    run("${COMPILER}" -std=c++20 "${SOURCE}/examples/host/main.cpp" ${flags} -o "${host}/found-by-pkg-config")
endif()

# Every symbol that the library shows is its own.
find_program(NM NAMES nm)
if(NM)
    file(GLOB libraries "${prefix}/lib*/libzedobjparam.so" "${prefix}/lib/*/libzedobjparam.so")
    list(GET libraries 0 library)
    execute_process(COMMAND "${NM}" -D --demangle --defined-only --format=posix "${library}" OUTPUT_VARIABLE symbols
                    COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+" symbols "${symbols}")
    list(FILTER symbols EXCLUDE REGEX "^([a-zA-Z-]+ )*Ax|^ax[A-Z]|^operator|^equalTrees")
    if(symbols)
        list(JOIN symbols "\n" symbols)
        message(FATAL_ERROR "exported, but not of this library:\n${symbols}")
    endif()
endif()

file(GLOB programs "${host}/host" "${host}/zedobjparam_host")
if(NOT programs)
    message(FATAL_ERROR "examples/host built no program named host or zedobjparam_host")
endif()
list(GET programs 0 program)
execute_process(COMMAND "${program}" "${SOURCE}/examples/force/force.opd" "${host}/saved.opd" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "the example host ended with ${result}")
endif()
