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
