#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>

#include "mirolen/qt/FormView.h"
#include "mirolen/widgets/Toolkit.h"

namespace mirolen::qt {

/// A peer with a QWidget.
class ViewPeer : public Peer {
 public:
  /// Null when the QWidget has gone before its widget.
  virtual QWidget* view() const = 0;

  void refresh() override;
  std::uintptr_t handle() const override;
};

/// The QWidget of a widget; null without one.
QWidget* view_of(const Widget& widget);

/// The peer of a child, with the QWidget that shows its kind; null where its container is not shown.
std::unique_ptr<Peer> make_child_peer(Widget& widget);

/// The peer of the control itself, whose QWidget belongs to the host.
class FacePeer : public ViewPeer {
 public:
  FacePeer(UserControl& control, QWidget& face);

  QWidget* view() const override { return face_; }
  /// The QWidget follows a size that the control gives itself, but not one that it has from the QWidget.
  void changed() override;

 private:
  void follow_size();
  void show_pointer();

  UserControl& control_;
  QPointer<QWidget> face_;
  double width_, height_;
  std::int16_t pointer_ = 0;
  std::shared_ptr<const Image> icon_;
};

/// The peer of a form: a dialog, which ends when the form is hidden.
class FormPeer : public ViewPeer {
 public:
  FormPeer(Form& form, QWidget& owner);
  ~FormPeer() override;

  QWidget* view() const override { return view_; }
  void changed() override;

 private:
  QPointer<FormView> view_;
};

}  // namespace mirolen::qt
