#pragma once

#include <QCoreApplication>
#include <QDialog>

#include "PagePreview.h"

class QLabel;
class QScrollArea;
class QToolBar;

/// Shows a page before it is printed. It is accepted where the user asks to print it.
class PreviewDialog : public QDialog {
  Q_DECLARE_TR_FUNCTIONS(examples)

 public:
  PreviewDialog(const QPageLayout& layout, PagePreview::Draw draw, QWidget* parent);

  PagePreview& page() { return *page_; }

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void fill(QToolBar& bar);
  void zoom_to(double zoom);
  void zoom_by_step(int direction);
  void fit();

  PagePreview* page_;
  QScrollArea* scroll_;
  QLabel* percent_;
  bool seen_ = false;
};
