# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT

# Module items in the build of a host. docs/build-items.md explains the functions.

# Whatever version of CMake the host was written for.
cmake_policy(VERSION 3.16)

# kelto_add_items(<target> ITEMS <file>... [NAME <name>] [CONTEXT <context>]
#                 [TRANSLATIONS <language or .ts file>...] [EMBED])
# Checks the items and compiles them into the target, as source text or, with EMBED, as resources.
# Either way the header <name>.h declares them in the namespace <name>, which is <target>_items
# unless NAME says otherwise.
function(kelto_add_items target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "EMBED" "CONTEXT;NAME" "ITEMS;TRANSLATIONS")
    _kelto_check_arguments(kelto_add_items ${target} "${arg_ITEMS}" "${arg_UNPARSED_ARGUMENTS}")
    set(name ${arg_NAME})
    if(NOT name)
        # Two underscores side by side are reserved in C++.
        string(MAKE_C_IDENTIFIER "${target}_items" name)
        string(REGEX REPLACE "__+" "_" name ${name})
    endif()
    set(identifier "[A-Za-z_][A-Za-z0-9_]*")
    _kelto_check_name(NAME "${name}" "^${identifier}$")
    _kelto_check_name(CONTEXT "${arg_CONTEXT}" "^(${identifier}(::${identifier})*)?$")
    set(directory ${CMAKE_CURRENT_BINARY_DIR}/${name})
    get_property(names DIRECTORY PROPERTY KELTO_ITEM_NAMES)
    if(name IN_LIST names)
        message(FATAL_ERROR "kelto_add_items: the name ${name} is taken; give another NAME.")
    endif()
    set_property(DIRECTORY APPEND PROPERTY KELTO_ITEM_NAMES ${name})
    # Without a locale, Qt's tools would not find files with other than English letters.
    set(utf8)
    if(UNIX)
        set(utf8 ${CMAKE_COMMAND} -E env LC_ALL=C.UTF-8)
    endif()
    set(items)
    foreach(item IN LISTS arg_ITEMS)
        get_filename_component(item "${item}" ABSOLUTE)
        list(APPEND items "${item}")
    endforeach()
    _kelto_generate_items()
    if(arg_EMBED)
        _kelto_compile_resources("${directory}/${name}.qrc" ${name} "${stamp}")
    endif()
    if(arg_TRANSLATIONS)
        _kelto_translate_items()
    endif()
endfunction()

# kelto_lint_test(<name> <path>...)
# Adds a test that fails where "kelto lint" finds something in these files or directories.
function(kelto_lint_test name)
    _kelto_require_command(kelto_lint_test)
    if(NOT ARGN)
        message(FATAL_ERROR "kelto_lint_test needs at least one file or directory.")
    endif()
    set(paths)
    foreach(path IN LISTS ARGN)
        get_filename_component(path "${path}" ABSOLUTE)
        list(APPEND paths "${path}")
    endforeach()
    add_test(NAME ${name} COMMAND Kelto::kelto lint -- ${paths})
endfunction()

# --- Private -------------------------------------------------------------------

function(_kelto_require_command function)
    if(NOT TARGET Kelto::kelto)
        message(FATAL_ERROR "${function} needs the command kelto, which was not found. Install the "
            "component Tools of Kelto, and call find_package(Kelto) in this directory or above. "
            "Where Kelto is a part of this project, set KELTO_BUILD_TOOLS to ON.")
    endif()
endfunction()

function(_kelto_check_arguments function target items unknown)
    _kelto_require_command(${function})
    if(unknown)
        message(FATAL_ERROR "${function} takes no \"${unknown}\".")
    endif()
    if(NOT items)
        message(FATAL_ERROR "${function} needs ITEMS with at least one file.")
    endif()
    if(NOT TARGET ${target})
        message(FATAL_ERROR "${function}: there is no target \"${target}\".")
    endif()
    # Rules of other directories could not make what the target is compiled from.
    get_target_property(source_dir ${target} SOURCE_DIR)
    if(NOT source_dir STREQUAL CMAKE_CURRENT_SOURCE_DIR)
        message(FATAL_ERROR "${function} has to be called where \"${target}\" is added: ${source_dir}")
    endif()
    foreach(item IN LISTS items)
        get_filename_component(item "${item}" ABSOLUTE)
        get_source_file_property(is_generated "${item}" GENERATED)
        if(IS_DIRECTORY "${item}" OR NOT (EXISTS "${item}" OR is_generated))
            message(FATAL_ERROR "${function}: there is no file \"${item}\".")
        endif()
    endforeach()
endfunction()

# The command knows all names that cannot be used. This is about mistakes in the call.
function(_kelto_check_name argument value pattern)
    if(NOT value MATCHES "${pattern}")
        message(FATAL_ERROR "kelto_add_items: ${argument} cannot be \"${value}\" in C++.")
    endif()
endfunction()

# Files that the target is compiled from as they are.
macro(_kelto_add_sources)
    target_sources(${target} PRIVATE ${ARGN})
    set_source_files_properties(${ARGN} PROPERTIES
        GENERATED ON
        SKIP_AUTOGEN ON
        SKIP_PRECOMPILE_HEADERS ON
        SKIP_UNITY_BUILD_INCLUSION ON)
endmacro()

# The settings of the check, which lie beside an item or above it. One that is removed is no error.
macro(_kelto_find_lint_settings)
    set(settings)
    foreach(item IN LISTS items)
        get_filename_component(above "${item}" DIRECTORY)
        set(below)
        while(NOT above STREQUAL below)
            if(EXISTS "${above}/.kelto-lint.ini")
                list(APPEND settings "${above}/.kelto-lint.ini")
            endif()
            set(below "${above}")
            get_filename_component(above "${above}" DIRECTORY)
        endwhile()
    endforeach()
    list(REMOVE_DUPLICATES settings)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${settings})
endmacro()

# The generated files are written only when they change, so that they can be older than the items:
# what is up to date tells the stamp.
macro(_kelto_generate_items)
    set(stamp ${directory}/${name}.stamp)
    set(generated ${directory}/${name}.h ${directory}/${name}.cpp)
    set(options --lint)
    if(arg_EMBED)
        list(APPEND options --embed)
    endif()
    if(arg_CONTEXT)
        list(APPEND options --context ${arg_CONTEXT})
    endif()
    _kelto_find_lint_settings()
    # Removing a file makes none of the others newer; it does change this list of them.
    set(list ${directory}/items.txt)
    string(REPLACE ";" "\n" lines "${items};${settings};${options}")
    file(GENERATE OUTPUT "${list}" CONTENT "${lines}\n")
    set(resources)
    if(arg_EMBED)
        set(resources ${directory}/${name}.qrc)
    endif()
    add_custom_command(OUTPUT "${stamp}"
        BYPRODUCTS ${generated} ${resources}
        COMMAND Kelto::kelto code -o "${directory}" --name ${name} ${options} -- ${items}
        COMMAND ${CMAKE_COMMAND} -E touch "${stamp}"
        DEPENDS ${items} ${settings} "${list}" Kelto::kelto
        COMMENT "Checking the module items of ${target}"
        VERBATIM)
    _kelto_add_sources("${stamp}" ${generated})
    set_property(TARGET ${target} APPEND PROPERTY KELTO_ITEM_STAMPS "${stamp}")
    target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${directory}>")
endmacro()

# The file list for rcc, the name that it gives the resources, and what they are made from.
macro(_kelto_compile_resources resource_list resource_name)
    # A Kelto that is a part of the project finds Qt for itself alone.
    find_package(Qt5Core 5.15 REQUIRED QUIET)
    set(compiled ${directory}/qrc_${resource_name}.cpp)
    add_custom_command(OUTPUT "${compiled}"
        COMMAND ${utf8} $<TARGET_FILE:Qt5::rcc> --name ${resource_name} --output "${compiled}" "${resource_list}"
        DEPENDS ${ARGN} Qt5::rcc
        VERBATIM)
    _kelto_add_sources("${compiled}")
endmacro()

# rcc warns of resources without a file. Q_INIT_RESOURCE finds these, too.
macro(_kelto_add_empty_resources resource_name)
    set(lines "// No translation exists yet.\n")
    foreach(function IN ITEMS qInitResources qCleanupResources)
        set(signature "int ${function}_${resource_name}()")
        string(APPEND lines "${signature};\n${signature}\n{\n    return 1;\n}\n")
    endforeach()
    file(GENERATE OUTPUT "${directory}/qrc_${resource_name}.cpp" CONTENT "${lines}")
    _kelto_add_sources("${directory}/qrc_${resource_name}.cpp")
endmacro()

macro(_kelto_translate_items)
    find_package(Qt5LinguistTools 5.15 QUIET)
    if(NOT TARGET Qt5::lrelease)
        message(FATAL_ERROR "kelto_add_items needs Qt5LinguistTools for TRANSLATIONS.")
    endif()
    set(ts_files)
    set(qm_files)
    set(files)
    set(languages)
    foreach(ts IN LISTS arg_TRANSLATIONS)
        if(NOT ts MATCHES "\\.ts$")
            set(ts translations/${target}_${ts}.ts)
        endif()
        get_filename_component(ts "${ts}" ABSOLUTE)
        list(APPEND ts_files "${ts}")
        if(NOT EXISTS "${ts}")
            message(STATUS "${ts} does not exist yet: build the target ${name}_lupdate, and "
                "configure again.")
            continue()
        endif()
        get_filename_component(language "${ts}" NAME_WLE)
        list(FIND languages "${language}" place)
        if(NOT place EQUAL -1)
            message(FATAL_ERROR "kelto_add_items: two files of TRANSLATIONS are called "
                "\"${language}.ts\", and would have the same name in the program.")
        endif()
        list(APPEND languages "${language}")
        set(qm ${directory}/${language}.qm)
        add_custom_command(OUTPUT "${qm}"
            COMMAND ${utf8} $<TARGET_FILE:Qt5::lrelease> -silent "${ts}" -qm "${qm}"
            DEPENDS "${ts}"
            VERBATIM)
        list(APPEND qm_files "${qm}")
        string(REPLACE "&" "&amp;" language "${language}")
        string(REPLACE "<" "&lt;" language "${language}")
        string(APPEND files "<file>${language}.qm</file>")
    endforeach()
    set(translations ${directory}/${name}_translations.qrc)
    if(qm_files)
        file(GENERATE OUTPUT "${translations}"
            CONTENT "<RCC><qresource prefix=\"/translations\">${files}</qresource></RCC>\n")
        _kelto_compile_resources("${translations}" ${name}_translations ${qm_files} "${translations}")
    else()
        _kelto_add_empty_resources(${name}_translations)
    endif()
    _kelto_add_lupdate()
endmacro()

# The sources of the target may come from functions that are called after this one. Files that the
# build makes are left out: they need not exist yet, and only those of items hold texts of people.
macro(_kelto_add_lupdate)
    set(stamps "$<TARGET_PROPERTY:${target},KELTO_ITEM_STAMPS>")
    set(pattern "\\.(c|cc|cpp|cxx|h|hh|hpp|hxx|qml|ui)$")
    set(sources "$<FILTER:$<TARGET_PROPERTY:${target},SOURCES>,INCLUDE,${pattern}>")
    # The sources can be others in each configuration.
    set(script ${directory}/sources-$<CONFIG>.cmake)
    file(GENERATE OUTPUT "${script}" CONTENT "set(lines)
foreach(source IN ITEMS [[$<JOIN:${sources},]] [[>]])
    get_filename_component(source \"\${source}\" ABSOLUTE BASE_DIR [[${CMAKE_CURRENT_SOURCE_DIR}]])
    string(FIND \"\${source}\" [[${CMAKE_CURRENT_BINARY_DIR}/]] place)
    if(EXISTS \"\${source}\" AND NOT (place EQUAL 0 OR source MATCHES \"_autogen/|/qrc_[^/]*$\"))
        string(APPEND lines \"\${source}\\n\")
    endif()
endforeach()
foreach(stamp IN ITEMS [[$<JOIN:${stamps},]] [[>]])
    string(REGEX REPLACE \"stamp$\" \"cpp\" source \"\${stamp}\")
    string(APPEND lines \"\${source}\\n\")
endforeach()
file(WRITE [[${directory}/sources.txt]] \"\${lines}\")
")
    foreach(ts IN LISTS ts_files)
        get_filename_component(ts_directory "${ts}" DIRECTORY)
        list(APPEND make_directories COMMAND ${CMAKE_COMMAND} -E make_directory "${ts_directory}")
    endforeach()
    # Places in generated files would change with every item.
    add_custom_target(${name}_lupdate
        ${make_directories}
        COMMAND ${CMAKE_COMMAND} -P "${script}"
        COMMAND ${utf8} $<TARGET_FILE:Qt5::lupdate> "@${directory}/sources.txt" -locations none -ts ${ts_files}
        DEPENDS "${stamps}"
        WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}"
        COMMENT "Collecting the texts of ${target}"
        VERBATIM)
endmacro()
