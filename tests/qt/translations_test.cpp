#include "mirolen/qt/translations.h"

#include <gtest/gtest.h>

#include <QTranslator>
#include <cmath>
#include <set>

#include "dialogs/form_layout.h"
#include "mirolen/controls/descriptions.h"
#include "mirolen/core/translation.h"
#include "mirolen/dialogs/PropertyDialog.h"
#include "mirolen/dialogs/frmAbout.h"
#include "mirolen/dialogs/frmPlotHist.h"
#include "mirolen/dialogs/frmPlotOpt1D.h"
#include "mirolen/dialogs/frmPlotOpt2DB.h"
#include "mirolen/dialogs/frmPlotOpt2DC.h"
#include "mirolen/dialogs/frmPlotOpt2d.h"
#include "mirolen/dialogs/frmPlotOpt2ds.h"
#include "mirolen/dialogs/frmPlotOpt3d.h"
#include "mirolen/dialogs/frmPlotOpt3ds.h"
#include "mirolen/print/PrintWafer.h"
#include "mirolen/qt/PrintJob.h"
#include "mirolen/qt/SettingsBag.h"
#include "mirolen/qt/StateView.h"
#include "mirolen/qt/captions.h"
#include "mirolen/qt/translate.h"
#include "mirolen/widgets/Headless.h"
#include "qt/form_user.h"
#include "qt/in_german.h"
#include "qt/nine_faces.h"
#include "qt/page_tools.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::install_translations;
using qt::view_of;

/// All captions below a widget, and its own.
QStringList captions_of(const Widget& root) {
  QStringList captions;
  if (const auto* captioned = dynamic_cast<const Captioned*>(&root))
    captions << qt::text_of(captioned->Caption.get());
  for (const Widget* child : root.children()) captions << captions_of(*child);
  return captions;
}

using Texts = std::vector<std::string>;

/// The texts of a window that are wider than their views, of which each may be short of as much as a blank on
/// the face of a control: labels as wide as their texts lack that. Heights do not depend on the language.
Texts cut_texts(const QWidget& window) {
  Texts cut;
  for (const QWidget* view : window.findChildren<QWidget*>()) {
    const auto* text = dynamic_cast<const qt::TextView*>(view);
    if (!text || !view->isVisible()) continue;
    const bool on_form = dynamic_cast<const qt::FormView*>(&window) != nullptr;
    const int spare = on_form ? 0 : QFontMetrics(view->font(), view).horizontalAdvance(' ') + 1;
    const int needed = text->needed_size().width() - spare;
    if (needed > view->width())
      cut.push_back(std::to_string(needed) + " in " + std::to_string(view->width()));
  }
  return cut;
}

// ---- The catalogue ----

TEST(Translations, BringTheLanguageOfTheLocaleAndGoBackToEnglish) {
  for (const char* locale : {"de", "de_DE", "de_AT"}) {
    EXPECT_TRUE(install_translations(QLocale(locale))) << locale;
    EXPECT_EQ(tr("Legend"), "Legende") << locale;
    EXPECT_EQ(tr("Notch"), "Kerbe") << locale;
    EXPECT_EQ(tr("Mean"), "Mittelwert") << locale;
    EXPECT_EQ(tr("Apply"), "Übernehmen") << locale;
    EXPECT_EQ(tr("Legend "), "Legende ") << locale;
  }
  EXPECT_TRUE(install_translations(QLocale("en_GB")));
  EXPECT_EQ(tr("Legend"), "Legend");
  set_translator({});
}

TEST(Translations, AreEnglishWhereThereIsNoCatalogue) {
  const InGerman german;
  EXPECT_FALSE(install_translations(QLocale("ja")));
  EXPECT_EQ(tr("Notch"), "Notch");
}

TEST(Translations, KeepATextThatIsInNoCatalogue) {
  const InGerman german;
  EXPECT_EQ(tr("a text of nobody's"), "a text of nobody's");
}

TEST(Translations, MayComeFromTheHost) {
  struct Host : QTranslator {
    QString translate(const char* context, const char* text, const char*, int) const override {
      return QByteArray(context) == "mirolen" && QByteArray(text) == "Notch" ? "Encoche" : QString();
    }
    bool isEmpty() const override { return false; }
  } host;
  EXPECT_FALSE(install_translations(QLocale("fr")));
  QCoreApplication::installTranslator(&host);
  EXPECT_EQ(tr("Notch"), "Encoche");
  QCoreApplication::removeTranslator(&host);
  EXPECT_EQ(tr("Notch"), "Notch");
  set_translator({});
}

// ---- What is on the screen ----

TEST(FaceInGerman, HasALegendAndAMarkInGerman) {
  const InGerman german;
  ShownPlot plot;
  const auto& control = plot.face.control();
  EXPECT_TRUE(captions_of(control).contains("Legende"));
  EXPECT_TRUE(captions_of(control).contains("Kerbe"));
  EXPECT_EQ(plot.face.property("PlotCaption").toString(), "Wafer");
  plot.face.setProperty("WaferStyle", 2);
  plot.face.Plot();
  EXPECT_TRUE(captions_of(control).contains("Abflachung"));
  EXPECT_FALSE(captions_of(control).contains("Flat"));
}

TEST(FaceInGerman, IsInEnglishAfterwards) {
  { const InGerman german; }
  ShownPlot plot;
  EXPECT_TRUE(captions_of(plot.face.control()).contains("Legend"));
  EXPECT_TRUE(captions_of(plot.face.control()).contains("Notch"));
}

class FacesInGerman : public testing::TestWithParam<const char*> {};

TEST_P(FacesInGerman, CutNoText) {
  const InGerman german;
  const auto face = make_face(GetParam());
  face->resize(600, 450);
  face->show();
  load_slope(*face);
  face->Plot();
  QTest::qWait(0);
  EXPECT_EQ(cut_texts(*face), Texts());
}
INSTANTIATE_TEST_SUITE_P(Nine, FacesInGerman, testing::ValuesIn(nine_faces));

// ---- Forms ----

template <class Kind>
class FormInGerman : private InGerman, public testing::Test {
 protected:
  FormInGerman() {
    data.WafDiam = data.test_diam = 200;
    face.resize(400, 300);
    face.show();
    QTest::qWait(0);
  }
  wafer data;
  QWidget face;
  qt::QtToolkit toolkit{face};
  Kind form{toolkit};
};
using OptionForms = testing::Types<frmPlotOpt2d, frmPlotOpt2ds, frmPlotOpt2DC, frmPlotOpt2DB, frmPlotOpt3d,
                                   frmPlotOpt3ds, frmPlotHist, frmPlotOpt1D, frmAbout>;
TYPED_TEST_SUITE(FormInGerman, OptionForms);

TYPED_TEST(FormInGerman, CutsNoText) {
  show_to(this->form, [&] {
    EXPECT_EQ(cut_texts(*view_of(this->form)), Texts());
    const QStringList captions = captions_of(this->form);
    EXPECT_FALSE(captions.contains("Cancel"));
    EXPECT_FALSE(captions.contains("Define Plot Options"));
  });
}

/// Whether the keyboard reaches a widget by a letter alone: Return and Escape press the others.
bool needs_key(const Keyed& keyed, const Form& form) {
  if (keyed.kind() == WidgetKind::label) return keyed.Caption.get().find(':') != std::string::npos;
  return &keyed != form.DefaultButton && &keyed != form.CancelButton;
}

/// Every label of a field, option, box and button has an access key that is in its caption and nowhere else.
void expect_access_keys(const Form& form) {
  std::set<QString> keys;
  for (const Widget* widget : below(form)) {
    const auto* keyed = dynamic_cast<const Keyed*>(widget);
    if (!keyed || !needs_key(*keyed, form)) continue;
    const QString text = qt::with_mnemonic(qt::text_of(keyed->Caption.get()), keyed->AccessKey);
    const QKeySequence key = QKeySequence::mnemonic(text);
    EXPECT_FALSE(key.isEmpty()) << text.toStdString();
    EXPECT_TRUE(keys.insert(key.toString()).second) << text.toStdString();
  }
}

TYPED_TEST(FormInGerman, ReachesEverythingByAnAccessKey) {
  show_to(this->form, [&] { expect_access_keys(this->form); });
}

template <class Control>
class FormOfPagesInGerman : private InGerman, public testing::Test {
 protected:
  FormOfPagesInGerman() {
    control.InitProperties();
    face.resize(400, 300);
    face.show();
    QTest::qWait(0);
  }
  HeadlessToolkit headless;
  HeadlessContainer container;
  Control control{headless, container};
  QWidget face;
  qt::QtToolkit toolkit{face};
};
using WithPages = testing::Types<Plot2D, Plot2DS, Plot2DC, Plot3D, Plot3DS, Histogram, LineScan>;
TYPED_TEST_SUITE(FormOfPagesInGerman, WithPages);

TYPED_TEST(FormOfPagesInGerman, CutsNoText) {
  PropertyDialog dialog(this->toolkit, {described(this->control)});
  show_to(dialog, [&] {
    EXPECT_EQ(cut_texts(*view_of(dialog)), Texts());
    EXPECT_EQ(qt::text_of(dialog.apply.Caption.get()), "Übernehmen");
  });
}

TYPED_TEST(FormOfPagesInGerman, ReachesEverythingByAnAccessKey) {
  PropertyDialog dialog(this->toolkit, {described(this->control)});
  show_to(dialog, [&] { expect_access_keys(dialog); });
}

// ---- What goes wrong ----

/// What a step that fails says.
std::string reason_of(const std::function<void()>& step) {
  try {
    step();
  } catch (const RunTimeError& error) {
    return error.what();
  }
  return "";
}

TEST(ErrorsInGerman, SayWhatWentWrong) {
  const InGerman german;
  EXPECT_EQ(reason_of([] { divide(1, 0); }), "Division durch null");
  EXPECT_EQ(reason_of([] { to_int16(40000); }), "der Wert ist zu groß für seinen ganzzahligen Typ");
  EXPECT_EQ(reason_of([] { throw CanvasError(tr("the printing")); }), "die Zeichenfläche versagt: Drucken");
  wafer data;
  data.SetNop(1);
  EXPECT_EQ(reason_of([&] { data.SetGridValueD(1, NAN, 0, 0); }),
            "jede Zahl eines Messpunkts muss endlich sein");
  const TemporaryFile torn("{", "settings.json");
  EXPECT_TRUE(QString::fromStdString(reason_of([&] {
                qt::SettingsBag bag(torn.path);
              })).contains("keine Einstellungen"));
}

TEST(LineScanInGerman, NamesTheValueOfASite) {
  const InGerman german;
  qt::LineScan face;
  face.show();
  face.setShowSites(true);
  load_slope(face);
  face.Plot();
  QStringList tips;
  for (const QWidget* view : face.findChildren<QWidget*>())
    if (!view->toolTip().isEmpty()) tips << view->toolTip();
  EXPECT_TRUE(tips.join('|').contains(" Wert = ")) << tips.join('|').toStdString();
}

// ---- Numbers ----

TEST(FormAnswers, ReachThePlotWithADecimalComma) {
  const InGerman german;
  const CommaInForce comma;
  ShownPlot plot;
  plot.face.toolkit().on_form = [](Form& shown) {
    auto& form = dynamic_cast<frmPlotOpt2d&>(shown);
    EXPECT_EQ(form.tresx.ToolTipText.get(), "mm, mehr als 0,01 und weniger als 50");
    form.tresx.Text("2,75");
    form.OKbtn.OnClick();
  };
  plot.face.control().ShowPlotOption();
  EXPECT_EQ(plot.face.property("Resolution").toDouble(), 2.75);
}

TEST(FormAnswers, AreRefusedInGerman) {
  const InGerman german;
  ShownPlot plot;
  QStringList told;
  plot.face.toolkit().on_message = [&](const QString& text, const QString& title, auto) {
    told << title << text;
  };
  plot.face.toolkit().on_form = [](Form& shown) {
    auto& form = dynamic_cast<frmPlotOpt2d&>(shown);
    form.tresx.Text("");
    form.OKbtn.OnClick();
  };
  plot.face.control().ShowPlotOption();
  EXPECT_EQ(told, (QStringList{"Eingabefehler", "Die Auflösung darf nicht leer sein\n"}));
}

// ---- Pages ----

TEST(ReportInGerman, HasRoomForItsLabels) {
  const InGerman german;
  wafer data;
  const TemporaryFile file({}, "page.pdf");
  auto job = qt::PrintJob::pdf(file.path);
  PrintWafer page;
  page.PrinterObj = job;
  page.DrawWaferStatistics(data, 0, 0);
  page.DrawWaferSize(data, 4000, 0);
  page.DrawWaferRemarks(data, 0, 4000);
  page.DrawColoredLegend(data, 4000, 4000, true);
  page.DrawFlatNotchBox(8000, 0, 1, 0, 90);
  page.DrawFlatNotchBox(8000, 4000, 0.98, 0, 90);
  job->finish();
  const QString text = text_of_page(file.path, 1);
  for (const char* label :
       {"Statistik", "Mittelwert:",  "Maximum:",    "Minimum:", "Std.-Abw.:", "Spannweite:",
        "Max/Min:",  "Einheit:",     "Größe",       "Wafer-Ø:", "Mess-Ø:",    "Messpunkte:",
        "Form:",     "Waferangaben", "Bediener:",   "Fab:",     "Anlage:",    "Wafer-Nr.:",
        "Los:",      "Messgerät:",   "Besonderes:", "Legende",  "Kerbe",      "Abflachung"})
    EXPECT_TRUE(text.contains(label)) << label << " in " << text.toStdString();
}

}  // namespace
}  // namespace mirolen
