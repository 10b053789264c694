#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace mirolen::host_test {

/// A host that deletes a face in a slot: at once, as many a host does.
class Deleter : public QObject {
  Q_OBJECT

 public:
  explicit Deleter(QWidget* face) : face_(face) {}

 public slots:
  void delete_face() { delete face_.data(); }

 private:
  QPointer<QWidget> face_;
};

}  // namespace mirolen::host_test
