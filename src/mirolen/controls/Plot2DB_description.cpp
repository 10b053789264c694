#include "mirolen/controls/describe_frame.h"
#include "mirolen/controls/descriptions.h"

namespace mirolen {
namespace {

using automation::Type;

automation::ClassInfo describe_Plot2DB() {
  auto tell = describe::frame<Plot2DB>("Plot2DB");
  describe::plot_caption(tell);
  describe::legend_printing(tell);
  describe::interval_colors(tell, 10);
  describe::view(tell);
  tell.property("BeamWidth", "width of a bar, mm", &Plot2DB::BeamWidth, &Plot2DB::BeamWidth)
      .property("BeamHeight", "depth of a bar, mm", &Plot2DB::BeamHeight, &Plot2DB::BeamHeight)
      .property("BeamScale", "height of a bar, mm a unit of value", &Plot2DB::BeamScale, &Plot2DB::BeamScale);

  describe::stored_wafer(tell, "2DB", Type::int16);
  describe::stored_colors(tell, "2DInterCol", default_interval_colors);  // contract 44
  tell.stored("Stdbx2DB", Type::int16, 5, "BeamWidth").stored("Stdby2DB", Type::int16, 5, "BeamHeight");
  describe::stored_view(tell, "2DB");
  tell.stored("StdD3Scale2DB", Type::int16, 10, "BeamScale");
  describe::stored_window(tell, "2DB", "Wafer");
  return tell.build();
}

}  // namespace

const automation::ClassInfo& description_of_Plot2DB() {
  static const automation::ClassInfo info = describe_Plot2DB();
  return info;
}

}  // namespace mirolen
