#include "mirolen/dialogs/frmPlotOpt1D.h"

#include <algorithm>
#include <optional>

#include "mirolen/core/translation.h"
#include "mirolen/dialogs/input_checks.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

/// The number of a field: what is stored as long as it shows that.
std::optional<double> number_of(const TextField& field, double stored) {
  if (field.Text() == StringFormat::plain_text(stored)) return stored;
  if (!IsPlainDecimal(field.Text(), true)) return std::nullopt;
  return number_in(field.Text());
}

}  // namespace

frmPlotOpt1D::frmPlotOpt1D(Toolkit& toolkit) : OptionForm(toolkit) {
  name(optline, {"By angle", "By points"});
  name_marks(optMark);
  for (int i = 0; i < 2; ++i) {
    optline(i).OnClick = [this] {
      enable_fields();
      show_wafer();
    };
    watch(resx(i), line_.x[static_cast<std::size_t>(i)], i);
    watch(resy(i), line_.y[static_cast<std::size_t>(i)], i);
  }
  AngleValue.OnAngle = [this] { show_wafer(); };
  place_line_group();
  place_wafer_group();
  answer_with(OKbtn, cancel);
}

frmPlotOpt1D::PointFields& frmPlotOpt1D::point(int i) {
  if (i < 0 || i > 1) throw SubscriptOutOfRange();
  return i == 0 ? start : end;
}

void frmPlotOpt1D::watch(TextField& field, double& stored, int i) {
  field.ToolTipText = tr("mm, within the test diameter");
  field.OnLeave = [this, &field, &stored, i] { return leave(field, stored, i); };
}

void frmPlotOpt1D::place_line_group() {
  constexpr double next_column = Rows::field_width + Rows::gap, head_height = 225;
  frmline.Move(Rows::gap, Rows::gap);
  Rows rows(frmline, Rows::group_width + next_column);
  rows.add(optline(0), Rows::option_height);
  rows.add(lblangle, AngleValue);
  rows.add(optline(1), Rows::option_height);
  rows.add(lblx, head_height);
  rows.add(lblstart, start.x);
  rows.add(lblend, end.x);
  for (PointFields* fields : {&start, &end})
    fields->y.Move(fields->x.Left + next_column, fields->x.Top, Rows::field_width, fields->x.Height);
  lblx.Move(start.x.Left, lblx.Top, Rows::field_width);
  lbly.Move(start.y.Left, lblx.Top, Rows::field_width, head_height);
}

void frmPlotOpt1D::place_wafer_group() {
  constexpr double group = 1800;
  frmwafer.Move(frmline.Left + frmline.Width + Rows::gap, Rows::gap);
  Rows rows(frmwafer, group);
  picplus.Move(0, 0, 330, 330);
  picplus.Look = Shape::Form::cross;
  picplus.Visible = false;
  rows.add_picture(FNPlot, 990);
  frmmark.Move(frmwafer.Left, frmwafer.Top + frmwafer.Height + Rows::gap);
  Rows(frmmark, group).add_options(optMark);
  frmline.Height = std::max(frmline.Height.get(), frmmark.Top + frmmark.Height - frmline.Top);
  place_below(OKbtn, cancel, frmwafer.Left + group, frmline.Top + frmline.Height + Rows::gap);
}

void frmPlotOpt1D::SetValues(wafer& wafer, const ScanLine& line, bool mark_sites) {
  begin_with(wafer);
  line_ = line;
  AngleValue.show(line.angle);
  for (int i = 0; i < 2; ++i) {
    resx(i).Text(StringFormat::plain_text(line.x[static_cast<std::size_t>(i)]));
    resy(i).Text(StringFormat::plain_text(line.y[static_cast<std::size_t>(i)]));
  }
  FirstFocus = &optline(line.by_points ? 1 : 0);
  optline(line.by_points ? 1 : 0).Value(true);
  show_marks(optMark, mark_sites);
  enable_fields();
  show_wafer();
}

bool frmPlotOpt1D::GetResult(std::int16_t& angle, double& StartX, double& StartY, double& EndX,
                             double& EndY) const {
  if (!optline(1).Value()) {
    angle = AngleValue.value();
    return false;
  }
  StartX = line_.x[0];
  StartY = line_.y[0];
  EndX = line_.x[1];
  EndY = line_.y[1];
  return true;
}

void frmPlotOpt1D::enable_fields() {
  const bool by_points = optline(1).Value();
  lblangle.Enabled = !by_points;
  AngleValue.Enabled = !by_points;
  for (Label* label : {&lblx, &lbly, &lblstart, &lblend}) label->Enabled = by_points;
  for (int i = 0; i < 2; ++i) {
    resx(i).Enabled = by_points;
    resy(i).Enabled = by_points;
  }
}

bool frmPlotOpt1D::leave(TextField& field, double& stored, int i) {
  if (!number_of(field, stored)) {
    input_error(tr("Enter a numeric experssion"));  // contract 111
    field.Text(StringFormat::plain_text(stored));
    return false;
  }
  const auto at = static_cast<std::size_t>(i);
  const double x = number_of(resx(i), line_.x[at]).value_or(line_.x[at]);
  const double y = number_of(resy(i), line_.y[at]).value_or(line_.y[at]);
  const double radius = wafer_ ? wafer_->test_diam / 2 : 0;
  if (x * x + y * y > radius * radius) {
    input_error(tr("Testdiameter exeded"));  // contract 111
    resx(i).Text("0");                       // contract 116
    return false;
  }
  line_.x[at] = x;
  line_.y[at] = y;
  show_wafer();
  return true;
}

/// Return presses OK from within a field, which has not been left then.
bool frmPlotOpt1D::leave_all() {
  for (int i = 0; i < 2; ++i)
    for (TextField* field : {&resx(i), &resy(i)})
      if (!field->OnLeave()) return false;
  return true;
}

bool frmPlotOpt1D::is_good() {
  if (!optline(1).Value()) return true;
  if (!leave_all()) return false;
  const bool identical = line_.x[0] == line_.x[1] && line_.y[0] == line_.y[1];
  if (identical) input_error(tr("Start point and end point are identical. This is not allowed."));
  return !identical;
}

void frmPlotOpt1D::show_wafer() {
  show_preview([this] {
    const std::int16_t mode = optline(1).Value() ? 2 : 1;
    double x0 = 0, y0 = 0;
    wafer_->FlatNotchShow(nullptr, FNPlot, x0, y0, 20, 0, 90);
    wafer_->draw_indicator(FNLine, picplus, mode, AngleValue.value(), line_.rotation_x, line_.rotation_y,
                           line_.x[0], line_.y[0], line_.x[1], line_.y[1], FNPlot);
  });
}

}  // namespace mirolen
