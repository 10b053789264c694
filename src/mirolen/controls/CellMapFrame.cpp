#include "mirolen/controls/CellMapFrame.h"

#include <algorithm>

#include "mirolen/core/translation.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr double default_resolution = 5;

}  // namespace

void CellMapFrame::Resolution(double v) {
  if (!is_finite(v)) return;
  if (v <= 0) v = default_resolution;
  resolution_ = std::min(v, coarsest());
  look_changed("Resolution");
}

void CellMapFrame::ShowSites(Sites v) {
  show_sites_ = v == Sites::HideSite ? Sites::HideSite : Sites::ShowSite;
  look_changed("ShowSites");
}

void CellMapFrame::fill_in_settings() {
  if (resolution_ == 0) Resolution(default_resolution);
}

void CellMapFrame::prepare_redraw() {  // contract 95
  if (!is_too_coarse()) return;
  resolution_ = coarsest();
  notify("Resolution");
  toolkit().message_box(tr("Maximal possible resolution is ") + StringFormat::plain_text(coarsest()) + " mm",
                        tr("Standard resolution to high "), MessageIcon::critical);  // contract 111
  ShowPlotOption();
}

}  // namespace mirolen
