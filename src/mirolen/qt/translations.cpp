#include "mirolen/qt/translations.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

#include "mirolen/core/translation.h"

#ifdef MIROLEN_CATALOGUES
/// Static libraries lose what nobody calls. The macro needs the global namespace.
static void keep_catalogues() { Q_INIT_RESOURCE(mirolen_translations); }
#else
static void keep_catalogues() {}
#endif

namespace mirolen::qt {
namespace {

/// The first language of a locale that is known, in the order of its user's wishes. English needs no
/// catalogue.
bool load(QTranslator& catalogue, const QLocale& locale) {
  for (const QString& name : locale.uiLanguages()) {
    const QLocale language(name);
    if (language.language() == QLocale::English) return true;
    if (catalogue.load("mirolen_" + language.name(), QStringLiteral(":/mirolen/translations"))) return true;
  }
  return false;
}

std::string translated(std::string_view english) {
  return QCoreApplication::translate("mirolen", std::string(english).c_str()).toStdString();
}

}  // namespace

bool install_translations(const QLocale& locale) {
  keep_catalogues();
  static QPointer<QTranslator> in_force;
  delete in_force;
  in_force = new QTranslator(QCoreApplication::instance());
  const bool known = load(*in_force, locale);
  if (!in_force->isEmpty()) QCoreApplication::installTranslator(in_force);
  set_translator(translated);
  return known;
}

}  // namespace mirolen::qt
