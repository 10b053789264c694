#include "mirolen/dialogs/frmAbout.h"

#include <array>

#include "mirolen/core/translation.h"
#include "mirolen/core/version.h"
#include "mirolen/dialogs/Rows.h"
#include "mirolen/dialogs/control_icons.h"

namespace mirolen {
namespace {

// contract 118
constexpr std::array texts{translatable("2D Plot"),
                           translatable("3D Plot"),
                           translatable("2D Sigma Range Plot"),
                           translatable("3D Sigma Range Plot"),
                           translatable("2D Contour Plot "),  // contract 112
                           translatable("Line Scan"),
                           translatable("Histogram"),
                           translatable("2D Value Plot"),
                           translatable("3D Bar Plot")};

}  // namespace

frmAbout::frmAbout(Toolkit& toolkit) : Form(toolkit, "Sonvera.OCX ActiveX Control") {
  const SurfaceSize pixel = toolkit.twips_per_pixel();
  Width = 5400;
  Height = 2340;
  picIcon.Move(240, 240, icon_side * pixel.width, icon_side * pixel.height);
  lblTitle.Move(960, 240, 4200, 270);
  lblTitle.Font = FontSpec{.bold = true};
  lblVersion.Move(960, 570, 4200, 270);
  lblDescription.Move(960, 960, 4200, 600);
  cmdOK.Move(Width - 240 - Rows::button_width, 1785, Rows::button_width, Rows::button_height);

  const Version running = version();
  lblVersion.Caption = tr("Version ") + std::to_string(running.major) + "." + std::to_string(running.minor);
  lblDescription.Caption =
      tr("MirolenViewWM, plots of wafer measurements.\nThe MirolenViewWM authors, MIT License.");
  cmdOK.OnClick = [this] { Hide(); };
  DefaultButton = &cmdOK;
  CancelButton = &cmdOK;
  FirstFocus = &cmdOK;
}

void frmAbout::SetTitle(std::int16_t type) {
  std::string title = tr("Sonvera.OCX Type: ");  // contract 110
  if (type >= 1 && static_cast<std::size_t>(type) <= texts.size())
    title += tr(texts[static_cast<std::size_t>(type - 1)]);
  draw_control_icon(picIcon, type);
  lblTitle.Caption = title;
}

}  // namespace mirolen
