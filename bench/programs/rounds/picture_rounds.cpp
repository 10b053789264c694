// Answers the rounds of pictures and pages, and those of the same drawn cell by cell.

#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPdfWriter>
#include <iostream>

#include "mirolen/qt/PrintJob.h"
#include "rounds/plain_map.h"
#include "support/PolygonSurface.h"
#include "support/picture_work.h"

namespace mirolen::bench {
namespace {

constexpr int usual_sites = 1000;

std::shared_ptr<wafer> usual_wafer() { return std::make_shared<wafer>(loaded(uniform_sites(usual_sites))); }

/// Draws with a painter that stays on its picture.
template <class Draw>
Work polygons_work(Draw draw) {
  struct State {
    QImage image{picture_side, picture_side, QImage::Format_RGB32};
    QPainter painter{&image};
    PolygonSurface surface{painter};
  };
  return {[=, state = std::make_shared<State>()] { draw(state->surface); }};
}

void add_pictures(Works& works) {
  const auto map = [](wafer& w, PlotCanvas& canvas) { draw_color_map(w, canvas, map_cells); };
  works["map"] = [=] { return picture_work(usual_sites, map); };
  works["polygons/map"] = [=] {
    return polygons_work([=, w = usual_wafer()](Surface& surface) {
      on_picture(surface, [&](PlotCanvas& canvas) { map(*w, canvas); });
    });
  };
  works["plain/map"] = [] {
    return polygons_work(
        [w = plain_loaded(uniform_sites(1000))](Surface& surface) { draw_plain_map(w, surface, map_cells); });
  };
  works["surface"] = [] {
    return picture_work(usual_sites,
                        [](wafer& w, PlotCanvas& canvas) { draw_surface(w, canvas, surface_cells); });
  };
}

void add_pages(Works& works, const QString& folder) {
  const auto size_of = [](const QString& file) { return double(QFileInfo(file).size()); };
  works["pdf"] = [=, file = folder + "/map.pdf"] {
    return Work{[=, w = usual_wafer()] {
                  const auto page = qt::PrintJob::pdf(file);
                  print_color_map(*w, *page, map_cells);
                  page->finish();
                },
                [=] { return size_of(file); }};
  };
  works["plain/pdf"] = [=, file = folder + "/plain.pdf"] {
    return Work{[=, w = usual_wafer()] {
                  QPdfWriter writer(file);
                  writer.setResolution(qt::PrintJob::resolution);
                  writer.setPageLayout(qt::PrintJob::a4());
                  QPainter painter(&writer);
                  PolygonSurface surface(painter);
                  SurfaceCanvas page(CanvasKind::printer, &surface);
                  print_color_map(*w, page, map_cells);
                },
                [=] { return size_of(file); }};
  };
}

}  // namespace
}  // namespace mirolen::bench

int main(int argc, char** argv) {
  using namespace mirolen::bench;
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  if (argc != 2) {
    std::cerr << "usage: " << argv[0] << " FOLDER\n"
              << "Answers rounds (see programs/support/Rounds.h); pages are written into the folder.\n";
    return 2;
  }
  Works works;
  add_pictures(works);
  add_pages(works, QString::fromLocal8Bit(argv[1]));
  return answer_rounds(works);
}
