#pragma once

#include "mirolen/automation/ClassInfo.h"
#include "mirolen/controls/Histogram.h"
#include "mirolen/controls/LineScan.h"
#include "mirolen/controls/Plot2D.h"
#include "mirolen/controls/Plot2DB.h"
#include "mirolen/controls/Plot2DC.h"
#include "mirolen/controls/Plot2DN.h"
#include "mirolen/controls/Plot2DS.h"
#include "mirolen/controls/Plot3D.h"
#include "mirolen/controls/Plot3DS.h"

namespace mirolen {

// The description of each class: members, enumerations, events and stored keys.
const automation::ClassInfo& description_of_LineScan();
const automation::ClassInfo& description_of_Plot2D();
const automation::ClassInfo& description_of_Plot2DS();
const automation::ClassInfo& description_of_Plot2DC();
const automation::ClassInfo& description_of_Plot2DN();
const automation::ClassInfo& description_of_Plot2DB();
const automation::ClassInfo& description_of_Plot3D();
const automation::ClassInfo& description_of_Plot3DS();
const automation::ClassInfo& description_of_Histogram();
const automation::ClassInfo& description_of_wafer();

// An object for calls by name, stored properties and all else that works by description.
inline automation::Object described(LineScan& control) { return {&description_of_LineScan(), &control}; }
inline automation::Object described(Plot2D& control) { return {&description_of_Plot2D(), &control}; }
inline automation::Object described(Plot2DS& control) { return {&description_of_Plot2DS(), &control}; }
inline automation::Object described(Plot2DC& control) { return {&description_of_Plot2DC(), &control}; }
inline automation::Object described(Plot2DN& control) { return {&description_of_Plot2DN(), &control}; }
inline automation::Object described(Plot2DB& control) { return {&description_of_Plot2DB(), &control}; }
inline automation::Object described(Plot3D& control) { return {&description_of_Plot3D(), &control}; }
inline automation::Object described(Plot3DS& control) { return {&description_of_Plot3DS(), &control}; }
inline automation::Object described(Histogram& control) { return {&description_of_Histogram(), &control}; }
inline automation::Object described(wafer& wafer) { return {&description_of_wafer(), &wafer}; }

}  // namespace mirolen
