#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "mirolen/core/wafer.h"
#include "mirolen/render/Companions.h"
#include "support/CallLog.h"

namespace mirolen {

// What renderers fill in besides a canvas, keeping what was told to it.

class RecordingCaption : public CaptionLabel {
 public:
  std::optional<std::string> text;

  void caption(const std::string& told) override { text = told; }
};

class RecordingLabel : public ValueLabel {
 public:
  std::optional<std::string> text, tip;
  std::optional<bool> visible;

  void caption(const std::string& told) override { text = told; }
  void tool_tip(const std::string& told) override { tip = told; }
  void set_visible(bool told) override { visible = told; }
};

class RecordingBox : public ColorBox {
 public:
  std::optional<Color> color;
  std::optional<bool> visible;

  void set_color(Color told) override { color = told; }
  void set_visible(bool told) override { visible = told; }
};

/// The ten rows of a legend; row() counts from 1.
class RecordingLegend {
 public:
  RecordingLegend() {
    for (std::size_t index = 0; index < labels_.size(); ++index) {
      boxes[index] = &boxes_[index];
      labels[index] = &labels_[index];
    }
  }
  RecordingLegend(const RecordingLegend&) = delete;
  RecordingLegend& operator=(const RecordingLegend&) = delete;

  LegendBoxes boxes;
  LegendLabels labels;

  const RecordingBox& box(int row) const { return boxes_.at(static_cast<std::size_t>(row - 1)); }
  const RecordingLabel& label(int row) const { return labels_.at(static_cast<std::size_t>(row - 1)); }

 private:
  std::array<RecordingBox, 10> boxes_;
  std::array<RecordingLabel, 10> labels_;
};

/// The five labels of an axis.
class RecordingAxis {
 public:
  RecordingAxis() {
    for (std::size_t index = 0; index < captions_.size(); ++index) labels[index] = &captions_[index];
  }
  RecordingAxis(const RecordingAxis&) = delete;
  RecordingAxis& operator=(const RecordingAxis&) = delete;

  AxisLabels labels;

  /// What each of them was told, in their order; "(nothing)" for one that was told nothing.
  Lines texts() const {
    Lines told;
    for (const RecordingCaption& caption : captions_) told.push_back(caption.text.value_or("(nothing)"));
    return told;
  }

 private:
  std::array<RecordingCaption, 5> captions_;
};

/// "add", "hide_all" and "show mark left top tool tip".
class RecordingMarks : public SiteMarks {
 public:
  explicit RecordingMarks(int count) : count_(count) {}

  mutable CallLog log;

  int count() const override { return log.read("count"), count_; }
  void add() override {
    log.call("add", "add");
    ++count_;
  }
  void hide_all() override { log.call("hide_all", "hide_all"); }
  void show(int mark, double left, double top, const std::string& tool_tip) override {
    log.call("show", line_of("show", mark, left, top) + ' ' + tool_tip);
  }

 private:
  int count_;
};

class RecordingLine : public IndicatorLine {
 public:
  CallLog log;

  /// "set_ends X1 Y1 X2 Y2".
  void set_ends(double X1, double Y1, double X2, double Y2) override {
    log.call("set_ends", line_of("set_ends", X1, Y1, X2, Y2));
  }
};

class RecordingMark : public IndicatorMark {
 public:
  RecordingMark(double width, double height) : width_(width), height_(height) {}

  mutable CallLog log;

  double width() const override { return log.read("width"), width_; }
  double height() const override { return log.read("height"), height_; }
  /// "move_to left top".
  void move_to(double left, double top) override { log.call("move_to", line_of("move_to", left, top)); }
  void set_visible(bool visible) override { log.set("visible", visible); }

 private:
  double width_, height_;
};

}  // namespace mirolen
