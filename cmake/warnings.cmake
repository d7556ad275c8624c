# Warnings are errors in every build.
if(MSVC)
    add_compile_options(/W4 /WX /utf-8 /permissive- /EHsc)
else()
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-Wall> $<$<COMPILE_LANGUAGE:CXX>:-Wextra>
                        $<$<COMPILE_LANGUAGE:CXX>:-Werror> $<$<COMPILE_LANGUAGE:CXX>:-Woverloaded-virtual> $<$<COMPILE_LANGUAGE:CXX>:-Wimplicit-fallthrough>)
    # GCC 12, optimising, takes a copy of an empty wide text for one past its end when the headers are precompiled.
    set(optimising_gcc $<AND:$<COMPILE_LANG_AND_ID:CXX,GNU>,$<CONFIG:Release>>)
    add_compile_options($<${optimising_gcc}:-Wno-array-bounds> $<${optimising_gcc}:-Wno-stringop-overread>)
    add_compile_definitions($<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
endif()
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # A source compiled with others is taken for a header, in which types of unnamed namespaces would be suspect.
    add_compile_options(-Wno-subobject-linkage)
endif()
if(QZ_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
