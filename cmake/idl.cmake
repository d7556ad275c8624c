# qz_add_idl(<target> <file.idl>): an interface target that generates, from one IDL file, the header
# generated/<name>.h, the ids generated/<name>_i.c and the type library generated/<name>.tlb.
# Uses widl in the cross build and midl natively.
set(QZ_GENERATED_DIR ${CMAKE_BINARY_DIR}/generated)
file(MAKE_DIRECTORY ${QZ_GENERATED_DIR})

if(MINGW)
    find_program(QZ_WIDL x86_64-w64-mingw32-widl REQUIRED)
    find_path(QZ_WINE_IDL_DIR oaidl.idl PATHS /usr/include/wine/wine/windows /usr/include/wine/windows
              NO_CMAKE_FIND_ROOT_PATH REQUIRED)
    find_path(QZ_STDOLE_DIR stdole2.tlb PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows
              /usr/lib/wine/x86_64-windows NO_CMAKE_FIND_ROOT_PATH REQUIRED)
endif()

function(qz_add_idl target idl)
    get_filename_component(name ${idl} NAME_WE)
    get_filename_component(source ${idl} ABSOLUTE)
    set(base ${QZ_GENERATED_DIR}/${name})
    set(outputs ${base}.h ${base}_i.c ${base}.tlb)
    if(MINGW)
        set(widl ${QZ_WIDL} --win64 -I ${QZ_WINE_IDL_DIR} -L ${QZ_STDOLE_DIR})
        set(commands COMMAND ${widl} -h -o ${base}.h ${source} COMMAND ${widl} -u -o ${base}_i.c ${source}
                     COMMAND ${widl} -t -o ${base}.tlb ${source})
    else()
        # Proxies are not built, but midl writes them into the folder where it runs unless told otherwise.
        set(commands COMMAND midl /nologo /x64 /I ${CMAKE_SOURCE_DIR} /out ${QZ_GENERATED_DIR} /h ${base}.h
                     /iid ${base}_i.c /tlb ${base}.tlb /proxy ${base}_p.c /dlldata ${base}_dlldata.c ${source})
    endif()
    # widl looks for imported files from where it runs.
    add_custom_command(OUTPUT ${outputs} ${commands} DEPENDS ${source} WORKING_DIRECTORY ${CMAKE_SOURCE_DIR} VERBATIM)
    add_custom_target(${target}_files DEPENDS ${outputs})
    # The ids are compiled once; users link the target and include the header.
    add_library(${target} STATIC ${base}_i.c)
    add_dependencies(${target} ${target}_files)
    target_include_directories(${target} SYSTEM PUBLIC ${CMAKE_BINARY_DIR})
endfunction()
