#pragma once

#include "mirolen/automation/ClassInfo.h"
#include "mirolen/controls/Plot2D.h"

namespace mirolen {

/// The description of a class: members, enumerations, events and stored keys.
const automation::ClassInfo& description_of_Plot2D();
const automation::ClassInfo& description_of_wafer();

/// An object for calls by name, stored properties and all else that works by description.
inline automation::Object described(Plot2D& control) { return {&description_of_Plot2D(), &control}; }
inline automation::Object described(wafer& wafer) { return {&description_of_wafer(), &wafer}; }

}  // namespace mirolen
