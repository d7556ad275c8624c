# What every Windows target of this project is compiled with.
add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN STRICT
                        WINVER=0x0601 _WIN32_WINNT=0x0601)
if(MINGW)
    add_link_options(-static)
    # DLLs are named as on native Windows, without the "lib" of the cross toolchain.
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
    set(CMAKE_SHARED_MODULE_PREFIX "")
    # windres reads UTF-8 scripts; it does not understand the compiler's include flags for system folders.
    set(CMAKE_RC_FLAGS "-c 65001")
endif()

# qz_import_library(<target> <library> <exports.def>): a library of the system, for functions that the cross
# toolchain's import library lacks or takes by name. Natively it is the SDK's.
function(qz_import_library target library exports)
    if(NOT MINGW)
        add_library(${target} INTERFACE)
        target_link_libraries(${target} INTERFACE ${library})
        return()
    endif()
    set(import_library ${CMAKE_CURRENT_BINARY_DIR}/lib${target}.a)
    set(exports ${CMAKE_CURRENT_SOURCE_DIR}/${exports})
    add_custom_command(OUTPUT ${import_library} COMMAND ${CMAKE_DLLTOOL} -d ${exports} -l ${import_library}
                       DEPENDS ${exports} VERBATIM)
    add_custom_target(${target}_file DEPENDS ${import_library})
    add_library(${target} STATIC IMPORTED GLOBAL)
    set_target_properties(${target} PROPERTIES IMPORTED_LOCATION ${import_library})
    add_dependencies(${target} ${target}_file)
endfunction()

# qz_add_manifest(<target> <id>): the manifest that asks for version 6 of the common controls, as a resource of a
# library (id 2) or a program (id 1). Without it a library gets the version of the program that loads it.
function(qz_add_manifest target id)
    set(manifest ${CMAKE_SOURCE_DIR}/res/common_controls.manifest)
    set(script ${CMAKE_BINARY_DIR}/generated/${target}_manifest.rc)
    file(CONFIGURE OUTPUT ${script} CONTENT "${id} 24 \"res/common_controls.manifest\"\n")
    target_sources(${target} PRIVATE ${script})
    set_source_files_properties(${script} TARGET_DIRECTORY ${target} PROPERTIES OBJECT_DEPENDS ${manifest})
    if(MSVC)
        target_link_options(${target} PRIVATE /MANIFEST:NO)  # it is in the resources
    endif()
endfunction()
