#pragma once

#include "toolkit/menus/CMenu.h"

namespace Tessitor::GUI::Controls {

/// @return a menu of note lengths, without references: the sub-menus "Straight", "Triplet" and
///         "Dotted", each from "64" (a sixty-fourth note) up to "1" (a whole note). The ids count
///         from 0 through all three.
CMenu *createNoteLengthMenu();

}  // namespace Tessitor::GUI::Controls
