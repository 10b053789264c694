#include "PreviewDialog.h"

#include <QAction>
#include <QLabel>
#include <QScrollArea>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <array>

namespace {

constexpr std::array zoom_steps{0.25, 0.33, 0.5, 0.67, 0.75, 1.0, 1.25, 1.5, 2.0, 2.5, 3.0};

}  // namespace

PreviewDialog::PreviewDialog(const QPageLayout& layout, PagePreview::Draw draw, QWidget* parent)
    : QDialog(parent),
      page_(new PagePreview(layout, std::move(draw))),
      scroll_(new QScrollArea),
      percent_(new QLabel) {
  setWindowTitle(tr("Print preview"));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  auto* const column = new QVBoxLayout(this);
  auto* const bar = new QToolBar;
  fill(*bar);
  column->addWidget(bar);
  scroll_->setWidget(page_);
  scroll_->setAlignment(Qt::AlignCenter);
  scroll_->setBackgroundRole(QPalette::Dark);
  column->addWidget(scroll_, 1);
  resize(760, 860);
  scroll_->setFocus();
}

void PreviewDialog::fill(QToolBar& bar) {
  bar.setToolButtonStyle(Qt::ToolButtonTextOnly);
  const auto add = [&](const QString& text, const QList<QKeySequence>& keys, auto&& run) {
    QAction* const action = bar.addAction(text);
    action->setShortcuts(keys);
    action->setToolTip(
        tr("%1 (%2)").arg(QString(text).remove('&'), keys.first().toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, run);
  };
  add(tr("&Print..."), {QKeySequence(QKeySequence::Print)}, [this] { accept(); });
  bar.addSeparator();
  add(tr("Zoom &in"), {QKeySequence(tr("Ctrl++")), QKeySequence(tr("Ctrl+="))}, [this] { zoom_by_step(1); });
  add(tr("Zoom &out"), {QKeySequence(tr("Ctrl+-"))}, [this] { zoom_by_step(-1); });
  add(tr("&Actual size"), {QKeySequence(tr("Ctrl+1"))}, [this] { zoom_to(1); });
  add(tr("&Whole page"), {QKeySequence(tr("Ctrl+0"))}, [this] { fit(); });
  bar.addWidget(percent_);
  bar.addSeparator();
  add(tr("&Close"), {QKeySequence(Qt::Key_Escape)}, [this] { reject(); });
}

void PreviewDialog::zoom_to(double zoom) {
  page_->zoom_to(zoom);
  percent_->setText(tr("  %1 %  ").arg(qRound(100 * page_->zoom())));
}

void PreviewDialog::zoom_by_step(int direction) {
  constexpr double same = 0.005;
  const double zoom = page_->zoom();
  if (direction > 0) {
    const auto* next =
        std::find_if(zoom_steps.begin(), zoom_steps.end(), [=](double z) { return z > zoom + same; });
    if (next != zoom_steps.end()) zoom_to(*next);
  } else {
    const auto next =
        std::find_if(zoom_steps.rbegin(), zoom_steps.rend(), [=](double z) { return z < zoom - same; });
    if (next != zoom_steps.rend()) zoom_to(*next);
  }
}

void PreviewDialog::fit() { zoom_to(page_->zoom_for(scroll_->viewport()->size())); }

void PreviewDialog::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier) || event->angleDelta().y() == 0)
    return QDialog::wheelEvent(event);
  zoom_by_step(event->angleDelta().y());
  event->accept();
}

void PreviewDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (seen_) return;
  seen_ = true;
  fit();
}
