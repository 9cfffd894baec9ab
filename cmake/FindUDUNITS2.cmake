# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT

# Defines UDUNITS2::UDUNITS2, the library of units of measurement.

find_path(UDUNITS2_INCLUDE_DIR udunits2.h PATH_SUFFIXES udunits2)
find_library(UDUNITS2_LIBRARY udunits2)
mark_as_advanced(UDUNITS2_INCLUDE_DIR UDUNITS2_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(UDUNITS2 REQUIRED_VARS UDUNITS2_LIBRARY UDUNITS2_INCLUDE_DIR)

if(UDUNITS2_FOUND AND NOT TARGET UDUNITS2::UDUNITS2)
    add_library(UDUNITS2::UDUNITS2 UNKNOWN IMPORTED)
    set_target_properties(UDUNITS2::UDUNITS2 PROPERTIES
        IMPORTED_LOCATION "${UDUNITS2_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${UDUNITS2_INCLUDE_DIR}")
endif()
