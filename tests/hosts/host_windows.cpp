#include "host_windows.h"

#include <QDockWidget>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QGridLayout>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>

#include "qt/nine_faces.h"
#include "ui_designer_form.h"

namespace mirolen::host_test {
namespace {

using qt::PlotWidget;
using Faces = std::vector<PlotWidget*>;

Faces make_faces() {
  Faces faces;
  for (const char* const name : qt_test::nine_faces) faces.push_back(qt_test::make_face(name).release());
  return faces;
}

QWidget* grid_of(const Faces& faces) {
  auto* const ground = new QWidget;
  auto* const grid = new QGridLayout(ground);
  for (int i = 0; i < static_cast<int>(faces.size()); ++i)
    grid->addWidget(faces[static_cast<std::size_t>(i)], i / 3, i % 3);
  return ground;
}

HostWindow main_window() {
  auto window = std::make_unique<QMainWindow>();
  const Faces faces = make_faces();
  window->menuBar()->addMenu("File");
  window->addToolBar("Tools")->addAction("Plot");
  window->statusBar()->showMessage("ready");
  window->setCentralWidget(grid_of({faces.begin() + 1, faces.end()}));
  auto* const dock = new QDockWidget("Wafer");
  dock->setWidget(faces.front());
  window->addDockWidget(Qt::LeftDockWidgetArea, dock);
  return {std::move(window), faces};
}

HostWindow splitter() {
  auto window = std::make_unique<QSplitter>(Qt::Vertical);
  const Faces faces = make_faces();
  for (int row = 0; row < 3; ++row) {
    auto* const part = new QSplitter(Qt::Horizontal, window.get());
    for (int i = 0; i < 3; ++i) part->addWidget(faces[static_cast<std::size_t>(3 * row + i)]);
  }
  return {std::move(window), faces};
}

HostWindow tabs() {
  auto window = std::make_unique<QTabWidget>();
  const Faces faces = make_faces();
  for (PlotWidget* face : faces) window->addTab(face, face->metaObject()->className());
  return {std::move(window), faces};
}

HostWindow mdi_area() {
  auto window = std::make_unique<QMdiArea>();
  const Faces faces = make_faces();
  for (PlotWidget* face : faces) window->addSubWindow(face);
  window->tileSubWindows();
  return {std::move(window), faces};
}

HostWindow scroll_area() {
  auto window = std::make_unique<QScrollArea>();
  const Faces faces = make_faces();
  window->setWidget(grid_of(faces));
  window->setWidgetResizable(true);
  return {std::move(window), faces};
}

HostWindow graphics_proxy() {
  auto window = std::make_unique<QGraphicsView>();
  auto* const scene = new QGraphicsScene(window.get());
  const Faces faces = make_faces();
  for (int i = 0; i < static_cast<int>(faces.size()); ++i)
    scene->addWidget(faces[static_cast<std::size_t>(i)])->setPos(480 * (i % 3), 340 * (i / 3));
  window->setScene(scene);
  return {std::move(window), faces};
}

HostWindow designer_form() {
  auto window = std::make_unique<QWidget>();
  Ui::DesignerForm form;
  form.setupUi(window.get());
  return {std::move(window),
          {form.map, form.sigma_map, form.contour, form.values, form.bars, form.surface, form.sigma_surface,
           form.histogram, form.line_scan}};
}

}  // namespace

const std::vector<HostKind>& host_kinds() {
  static const std::vector<HostKind> kinds{
      {"main_window", main_window},    {"splitter", splitter},       {"tabs", tabs},
      {"mdi_area", mdi_area},          {"scroll_area", scroll_area}, {"graphics_proxy", graphics_proxy},
      {"designer_form", designer_form}};
  return kinds;
}

void load_slope(PlotWidget& face, double base) {
  std::vector<double> x, y, z;
  for (int i = -20; i <= 20; i += 10)
    for (int j = -20; j <= 20; j += 10) {
      x.push_back(i);
      y.push_back(j);
      z.push_back(base + i);
    }
  face.SetWaferData(x, y, z);
}

}  // namespace mirolen::host_test
