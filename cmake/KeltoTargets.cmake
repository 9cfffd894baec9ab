# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT

# kelto_target_defaults(<target> [PLAIN_TEXT])
# What every target of this project is built with. Nothing of it reaches a host.
# PLAIN_TEXT lets string literals become QStrings, for tests with many of them.
function(kelto_target_defaults target)
    cmake_parse_arguments(arg "PLAIN_TEXT" "" "" ${ARGN})
    target_compile_features(${target} PRIVATE cxx_std_17)
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON
        AUTOUIC ON
        AUTORCC ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    # The Qt definitions catch implicit text conversions and deprecated calls.
    if(NOT arg_PLAIN_TEXT)
        target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII)
    endif()
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_TO_ASCII
        QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_URL_CAST_FROM_STRING
        QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
        QT_NO_FOREACH
        QT_NO_KEYWORDS
        QT_USE_QSTRINGBUILDER
        QT_DEPRECATED_WARNINGS
        QT_DISABLE_DEPRECATED_BEFORE=0x050f00)
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow)
        if(KELTO_WARNINGS_AS_ERRORS)
            target_compile_options(${target} PRIVATE -Werror)
        endif()
    elseif(MSVC)
        target_compile_options(${target} PRIVATE /W4 /utf-8)
    endif()
    if(KELTO_SANITIZERS)
        target_compile_options(${target} PRIVATE
            -fsanitize=${KELTO_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${KELTO_SANITIZERS})
    endif()
endfunction()

# kelto_add_part(<directory> WANTED <bool> [NEEDS <target>...])
# Adds a part that Kelto can do without. It is left out, and the summary says so,
# where it is not wanted or where a target that it needs was not found.
function(kelto_add_part directory)
    cmake_parse_arguments(arg "" "WANTED" "NEEDS" ${ARGN})
    set(missing)
    foreach(target IN LISTS arg_NEEDS)
        if(NOT TARGET ${target})
            list(APPEND missing ${target})
        endif()
    endforeach()
    set(built OFF)
    if(NOT arg_WANTED)
        set(reason "switched off")
    elseif(missing)
        string(JOIN " " reason "not found:" ${missing})
    else()
        set(built ON)
        set(reason "built")
        add_subdirectory(${directory})
    endif()
    add_feature_info(${directory} built ${reason})
endfunction()
