# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT

# Qwt for Qt 5 as Qwt::Qwt. Its package has no file for CMake, and its pkg-config file asks for
# modules of Qt that a program with plots alone does not need.

find_path(QWT_INCLUDE_DIR qwt_plot.h PATH_SUFFIXES qwt qwt-qt5 qt5/qwt)
find_library(QWT_LIBRARY NAMES qwt-qt5)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Qwt REQUIRED_VARS QWT_LIBRARY QWT_INCLUDE_DIR)
mark_as_advanced(QWT_INCLUDE_DIR QWT_LIBRARY)
if(Qwt_FOUND AND NOT TARGET Qwt::Qwt)
    add_library(Qwt::Qwt UNKNOWN IMPORTED)
    set_target_properties(Qwt::Qwt PROPERTIES
        IMPORTED_LOCATION ${QWT_LIBRARY}
        INTERFACE_INCLUDE_DIRECTORIES ${QWT_INCLUDE_DIR})
endif()
