#pragma once

#include <QCoreApplication>
#include <QString>

/// A text of the examples in the language in force.
inline QString text(const char* english) { return QCoreApplication::translate("examples", english); }
