# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT

# What the libraries have in common: how they are built, and what they install.

include(GenerateExportHeader)

# Where the headers of the build tree are, under the names that a host uses.
set(KELTO_INCLUDE_DIR ${PROJECT_BINARY_DIR}/include)
set(KELTO_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Kelto)

# kelto_add_library(<target> ALIAS <alias> OUTPUT_NAME <name>)
# A project that says nothing about its libraries gets shared ones.
function(kelto_add_library target)
    cmake_parse_arguments(arg "" "ALIAS;OUTPUT_NAME" "" ${ARGN})
    if(DEFINED BUILD_SHARED_LIBS)
        add_library(${target})
    else()
        add_library(${target} SHARED)
    endif()
    add_library(${arg_ALIAS} ALIAS ${target})
    kelto_target_defaults(${target})
    string(REPLACE "Kelto::" "" export_name ${arg_ALIAS})
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${export_name}
        OUTPUT_NAME ${arg_OUTPUT_NAME}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    if(KELTO_DEBUG_INFO)
        target_compile_options(${target} PRIVATE -g)
    endif()
    if(NOT KELTO_SANITIZERS AND CMAKE_SYSTEM_NAME STREQUAL "Linux")
        # The sanitizers leave symbols to the program that loads the library.
        target_link_options(${target} PRIVATE LINKER:--no-undefined)
    endif()
endfunction()

# kelto_compile_translations(<target> <directory> <name>)
# Compiles <name>_zh_CN.ts of the directory into the library, by <name>_translations.qrc.
function(kelto_compile_translations target directory name)
    if(NOT TARGET Qt5::lrelease)
        return()
    endif()
    set(ts ${directory}/${name}_zh_CN.ts)
    set(qrc ${CMAKE_CURRENT_BINARY_DIR}/${name}_translations.qrc)
    set_source_files_properties(${ts} PROPERTIES OUTPUT_LOCATION ${CMAKE_CURRENT_BINARY_DIR})
    qt5_add_translation(qm_files ${ts})
    configure_file(${directory}/${name}_translations.qrc ${qrc} COPYONLY)
    set_source_files_properties(${qrc} PROPERTIES OBJECT_DEPENDS "${qm_files}")
    target_sources(${target} PRIVATE ${qm_files} ${qrc})
endfunction()

# kelto_add_public_headers(<target> BASE_NAME <name> DIRECTORY <directory> CLASSES <path>...)
# Makes the headers of public classes, each given as its folder and its name, under both of their
# names, below <directory> of the include directory; and the one with the export macros, which
# begin with <name>.
function(kelto_add_public_headers target)
    cmake_parse_arguments(arg "" "BASE_NAME;DIRECTORY" "CLASSES" ${ARGN})
    set(directory ${KELTO_INCLUDE_DIR}/${arg_DIRECTORY})
    set(headers)
    foreach(class_path IN LISTS arg_CLASSES)
        get_filename_component(class_name ${class_path} NAME)
        string(TOLOWER ${class_path}.h source)
        get_filename_component(file_name ${source} NAME)
        target_sources(${target} PRIVATE ${source})
        # Tests, benchmarks and examples include exactly what a host includes.
        file(GENERATE OUTPUT ${directory}/${file_name}
             CONTENT "#include \"${CMAKE_CURRENT_SOURCE_DIR}/${source}\"\n")
        file(GENERATE OUTPUT ${directory}/${class_name} CONTENT "#include \"${file_name}\"\n")
        list(APPEND headers ${CMAKE_CURRENT_SOURCE_DIR}/${source} ${directory}/${class_name})
    endforeach()
    string(TOLOWER ${arg_BASE_NAME}_export.h export_header)
    generate_export_header(${target}
        BASE_NAME ${arg_BASE_NAME}
        EXPORT_FILE_NAME ${directory}/${export_header})
    set_target_properties(${target} PROPERTIES
        PUBLIC_HEADER "${directory}/${export_header};${headers}")
    get_target_property(library_type ${target} TYPE)
    if(library_type STREQUAL "STATIC_LIBRARY")
        target_compile_definitions(${target} PUBLIC ${arg_BASE_NAME}_STATIC_DEFINE)
    endif()
    # With the directory in front and without it, in the build and installed.
    target_include_directories(${target}
        PUBLIC
            $<BUILD_INTERFACE:${KELTO_INCLUDE_DIR}>
            $<BUILD_INTERFACE:${directory}>
            $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
            $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/${arg_DIRECTORY}>
        PRIVATE
            ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()

# kelto_install_library(<target> EXPORT <export> HEADERS <directory>)
# Runtime is what a program needs that was built with the library, Development what it takes to
# build one.
function(kelto_install_library target)
    cmake_parse_arguments(arg "" "EXPORT;HEADERS" "" ${ARGN})
    install(TARGETS ${target} EXPORT ${arg_EXPORT}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime
            NAMELINK_COMPONENT Development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
        PUBLIC_HEADER DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${arg_HEADERS} COMPONENT Development)
    install(EXPORT ${arg_EXPORT}
        NAMESPACE Kelto::
        DESTINATION ${KELTO_CMAKE_DIR}
        COMPONENT Development)
endfunction()

# kelto_find_libraries_from(<target> <directory>)
# What is installed in the directory finds the libraries without being told, and still does when the
# installed tree is moved as a whole. Packages of a system set CMAKE_SKIP_INSTALL_RPATH.
function(kelto_find_libraries_from target directory)
    get_target_property(library_type Kelto TYPE)
    if(NOT library_type STREQUAL "SHARED_LIBRARY" OR DEFINED CMAKE_INSTALL_RPATH)
        return()
    endif()
    set(origin "\$ORIGIN")
    if(APPLE)
        set(origin "@loader_path")
    endif()
    # Directories outside of the prefix stay where they are.
    set(path "${CMAKE_INSTALL_FULL_LIBDIR}")
    if(NOT IS_ABSOLUTE "${directory}" AND NOT IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
        file(RELATIVE_PATH path "/prefix/${directory}" "/prefix/${CMAKE_INSTALL_LIBDIR}")
        string(REGEX REPLACE "/$" "" path "${origin}/${path}")
    endif()
    set_property(TARGET ${target} APPEND PROPERTY INSTALL_RPATH "${path}")
endfunction()

# kelto_install_package_file(<name>)
# Makes <name>.pc for pkg-config from cmake/<name>.pc.in. The prefix is worked out from where the
# file lies, so that an installed tree can be moved as a whole. A library directory outside the
# prefix says nothing of it.
function(kelto_install_package_file name)
    if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
        set(kelto_pc_prefix ${CMAKE_INSTALL_PREFIX})
    else()
        file(RELATIVE_PATH to_prefix "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
        set(kelto_pc_prefix "\${pcfiledir}/${to_prefix}")
    endif()
    foreach(directory IN ITEMS LIBDIR INCLUDEDIR)
        set(kelto_pc_${directory} "${CMAKE_INSTALL_${directory}}")
        if(NOT IS_ABSOLUTE "${kelto_pc_${directory}}")
            string(PREPEND kelto_pc_${directory} "\${prefix}/")
        endif()
    endforeach()
    get_target_property(library_type Kelto TYPE)
    if(library_type STREQUAL "STATIC_LIBRARY")
        string(TOUPPER ${name} base_name)
        string(MAKE_C_IDENTIFIER ${base_name} base_name)
        set(kelto_pc_definitions "-D${base_name}_STATIC_DEFINE ")
    endif()
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in
                   ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT Development)
endfunction()
