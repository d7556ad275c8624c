# The system's headers, precompiled: without that, two thirds of a source's compile time go into them. Sources
# include what they use all the same; lint compiles without what is made here. The smart pointer comes by our own
# header, which forbids what the system's gets wrong.
set(QZ_SYSTEM_HEADERS <algorithm> <array> <cmath> <functional> <map> <memory> <optional> <set> <span> <string>
                      <string_view> <unordered_map> <utility> <variant> <vector>)
if(WIN32)
    list(PREPEND QZ_SYSTEM_HEADERS <windows.h> <commctrl.h> <comdef.h> <ole2.h> "${CMAKE_SOURCE_DIR}/com/com_ptr.h")
endif()

file(WRITE ${CMAKE_BINARY_DIR}/precompiled/precompiled.cpp "// Exists so that the headers are precompiled.\n")
add_library(qz_precompiled OBJECT ${CMAKE_BINARY_DIR}/precompiled/precompiled.cpp)
target_precompile_headers(qz_precompiled PRIVATE ${QZ_SYSTEM_HEADERS})

# Every library and program made below `folder` uses them. Shared libraries are compiled with definitions of their
# own, which the compilers do not allow.
function(qz_precompile_below folder)
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target ${targets})
        get_target_property(type ${target} TYPE)
        get_target_property(sources ${target} SOURCES)
        if(type MATCHES "STATIC_LIBRARY|EXECUTABLE" AND sources MATCHES "\\.cpp")
            target_precompile_headers(${target} REUSE_FROM qz_precompiled)
        endif()
    endforeach()
    get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    foreach(below ${folders})
        qz_precompile_below(${below})
    endforeach()
endfunction()
