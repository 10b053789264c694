#include "support/faces.h"

#include <QApplication>
#include <QMouseEvent>
#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>
#include <string>

#include "mirolen/qt/Histogram.h"
#include "mirolen/qt/LineScan.h"
#include "mirolen/qt/Plot2D.h"
#include "mirolen/qt/Plot2DB.h"
#include "mirolen/qt/Plot2DC.h"
#include "mirolen/qt/Plot2DN.h"
#include "mirolen/qt/Plot2DS.h"
#include "mirolen/qt/Plot3D.h"
#include "mirolen/qt/Plot3DS.h"
#include "mirolen/qt/peers.h"
#include "support/NullSurface.h"
#include "support/drawings.h"
#include "support/wafers.h"

namespace mirolen::bench {
namespace {

constexpr double twips_per_pixel = 15;

class NullToolkit : public qt::QtToolkit {
 public:
  using QtToolkit::QtToolkit;
  std::unique_ptr<Surface> make_surface(PictureBox& box) override {
    return std::make_unique<NullSurface>(box.pixel_size());
  }
};

class DeafContainer : public Container {
 public:
  void ScaleMode(std::int16_t) override {}
  void changed(std::string_view) override {}
  void Click() override {}
  void DblClick() override {}
  void MouseDown(const MouseEvent&) override {}
  void MouseMove(const MouseEvent&) override {}
  void MouseUp(const MouseEvent&) override {}
};

/// A control on its own widget.
template <class Face>
class OnPicture {
 public:
  using Control = std::remove_reference_t<decltype(std::declval<Face&>().control())>;

  Control& control() { return face_.control(); }
  void resize(QSize size) { face_.resize(size); }
  void show() { face_.show(); }

 private:
  Face face_;
};

/// The same control on the same widgets, but without pictures.
template <class Face>
class OnNothing {
 public:
  using Control = typename OnPicture<Face>::Control;

  OnNothing() { control_.InitProperties(); }
  Control& control() { return control_; }
  void resize(QSize size) {
    window_.resize(size);
    control_.resize_to(size.width() * twips_per_pixel, size.height() * twips_per_pixel);
  }
  void show() { window_.show(); }

 private:
  QWidget window_;
  NullToolkit toolkit_{window_};
  DeafContainer container_;
  Control control_{toolkit_, container_};
};

template <class Control>
void make_finest(Control& control) {
  if constexpr (requires { control.XResolution(); }) {
    const double step = test_diameter / 2 / (surface_cells / 2 - 2);
    control.XResolution(step);
    control.YResolution(step);
  } else if constexpr (std::is_base_of_v<CellMapFrame, Control>) {
    control.Resolution(step_of(map_cells));
  }
}

/// Gives the control the size at which the shorter side of its picture is as long as wanted.
template <class Stage>
void fit_picture(Stage& stage) {
  QSize size(1000, 1000);
  for (int tries = 0; tries < 50; ++tries) {
    stage.resize(size);
    const SurfaceSize picture = stage.control().PLOTA.pixel_size();
    const int missing = picture_side - static_cast<int>(std::min(picture.width, picture.height));
    if (missing == 0) return;
    size += QSize(missing, missing);
  }
  throw std::runtime_error("no size gives the picture that is wanted");
}

template <class Stage>
std::shared_ptr<Stage> set_stage() {
  const auto stage = std::make_shared<Stage>();
  auto& control = stage->control();
  control.WaferDiameter(wafer_diameter);
  control.TestDiameter(test_diameter);
  const Sites sites = uniform_sites(sites_of_faces);
  if (control.SetWaferData(sites.x, sites.y, sites.z) != 0) throw std::runtime_error("no data");
  make_finest(control);
  fit_picture(*stage);
  stage->show();
  if (control.Plot() != 0) throw std::runtime_error("no plot");
  QApplication::processEvents();
  return stage;
}

template <class Stage>
std::function<void()> redrawing_on() {
  return [stage = set_stage<Stage>()] {
    stage->control().SetPlotNotVaild();
    stage->control().Plot();
    QApplication::processEvents();
  };
}

void send_mouse(QWidget& view, QEvent::Type type, QPointF place) {
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, place, view.mapToGlobal(place), button, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&view, &event);
}

template <class Stage>
std::function<void()> dragging_on() {
  constexpr QPointF place(picture_side / 2, picture_side / 2), way(40, 0);
  const auto stage = set_stage<Stage>();
  if constexpr (std::is_base_of_v<PerspectiveFrame, typename Stage::Control>)
    send_mouse(*qt::view_of(stage->control().PLOTA), QEvent::MouseButtonPress, place);
  return [=, there = false]() mutable {
    there = !there;
    send_mouse(*qt::view_of(stage->control().PLOTA), QEvent::MouseMove, there ? place + way : place);
    QApplication::processEvents();
  };
}

using Make = std::function<void()> (*)();
struct Actions {
  std::string_view name;
  std::array<Make, 2> redraw, drag;  // by Ground
};

template <class Face>
constexpr Actions actions_of(std::string_view name) {
  return {name,
          {redrawing_on<OnPicture<Face>>, redrawing_on<OnNothing<Face>>},
          {dragging_on<OnPicture<Face>>, dragging_on<OnNothing<Face>>}};
}

constexpr std::array all{actions_of<qt::Plot2DB>("Plot2DB"),  actions_of<qt::Plot3D>("Plot3D"),
                         actions_of<qt::Plot3DS>("Plot3DS"),  actions_of<qt::Plot2D>("Plot2D"),
                         actions_of<qt::Plot2DS>("Plot2DS"),  actions_of<qt::Plot2DC>("Plot2DC"),
                         actions_of<qt::Plot2DN>("Plot2DN"),  actions_of<qt::Histogram>("Histogram"),
                         actions_of<qt::LineScan>("LineScan")};

constexpr std::array names = [] {
  std::array<std::string_view, all.size()> found;
  for (std::size_t at = 0; at < all.size(); ++at) found[at] = all[at].name;
  return found;
}();

const Actions& actions(std::string_view control) {
  const auto found = std::find(names.begin(), names.end(), control);
  if (found == names.end()) throw std::invalid_argument("no such control: " + std::string(control));
  return all[static_cast<std::size_t>(found - names.begin())];
}

}  // namespace

std::span<const std::string_view> control_names() { return names; }
std::span<const std::string_view> names_in_perspective() { return std::span(names).first(3); }

std::function<void()> redrawing(std::string_view control, Ground ground) {
  return actions(control).redraw[static_cast<std::size_t>(ground)]();
}

std::function<void()> dragging(std::string_view control, Ground ground) {
  return actions(control).drag[static_cast<std::size_t>(ground)]();
}

}  // namespace mirolen::bench
