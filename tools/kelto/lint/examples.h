// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef EXAMPLES_H
#define EXAMPLES_H

// What the examples of rules have in common: a module with one mode, and its parameter.
#define BEAM_ITEM                                                                                  \
    "[KeltoItem]\n"                                                                                \
    "name=Beam\n"                                                                                  \
    "type=calculation\n"                                                                           \
    "exclusive_group=true\n"                                                                       \
    "inner_mode_count=1\n"                                                                         \
    "inner_mode_nameList=Cantilever\n"
#define BEAM_ATTRIBUTE                                                                             \
    "\n"                                                                                           \
    "[Attribute]\n"                                                                                \
    "Length=\n"
#define BEAM_PARAMETER                                                                             \
    BEAM_ATTRIBUTE                                                                                 \
    "\n"                                                                                           \
    "[Belong]\n"                                                                                   \
    "Length=Cantilever\n"

#define BEAM_FORCE                                                                                 \
    "\n"                                                                                           \
    "[Attribute]\n"                                                                                \
    "Force=\n"                                                                                     \
    "\n"                                                                                           \
    "[Belong]\n"                                                                                   \
    "Force=Cantilever\n"

#endif
