#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/screen/headless_desktop.h"

namespace korvantes::scripts {

/// A desktop and somebody who sits in front of it: what a script needs to play the user. The same
/// script brings about the same events, in the same order, on every stage.
class ScriptStage {
 public:
  template <class T>
  using Reply = screen::HeadlessDesktop::Reply<T>;

  /// The script's part. The functions mean what those of HeadlessDesktop mean.
  struct Cues {
    std::function<void(screen::Form&)> whileShown;
    std::function<Reply<screen::Answer>(const screen::MessageBox&)> onMessage;
    std::function<Reply<std::optional<std::size_t>>(const screen::ListDialog&)> onList;
    std::function<std::optional<std::string>(const screen::FileDialog&)> onFile;
    std::function<void(const screen::Form&)> onClosed;
  };

  ScriptStage() = default;
  virtual ~ScriptStage() = default;
  ScriptStage(const ScriptStage&) = delete;
  ScriptStage& operator=(const ScriptStage&) = delete;

  virtual screen::Desktop& desktop() = 0;
  /// Stops the clock at that moment.
  virtual void clock(const ado::Moment& moment) = 0;
  /// Takes over the script's part; the empty one ends it.
  virtual void follow(Cues cues) = 0;
  /// The open forms, topmost last.
  virtual const std::vector<screen::Form*>& forms() const = 0;

  // What the user does to the topmost form, as screen::UserInput and HeadlessDesktop have it.
  // std::logic_error when none is open.
  virtual bool moveFocus(screen::Control& control) = 0;
  virtual void stroke(const screen::Key& key) = 0;
  virtual void type(std::string_view text) = 0;
  virtual bool paste(std::string_view text) = 0;
  virtual bool clearText() = 0;
  virtual bool click(screen::Control& control) = 0;
  virtual bool tick(screen::ListView& list, std::size_t row, bool checked) = 0;
  virtual bool clickColumn(screen::ListView& list, int column) = 0;
  virtual bool selectEntry(screen::ComboBox& combo, int entry) = 0;
  virtual bool typeEntry(screen::ComboBox& combo, std::string_view text) = 0;
  virtual bool selectRow(screen::DataGrid& grid, std::size_t row) = 0;
  virtual bool pressCellButton(screen::DataGrid& grid, int column) = 0;
  virtual void close() = 0;
  virtual void settle() = 0;

  /// Whether there are windows of which pictures can be taken.
  virtual bool draws() const = 0;
  /// Saves a picture of the topmost window, form or dialog, as a png file. Throws ado::Error when
  /// it cannot be written.
  virtual void capture(const std::filesystem::path& file) = 0;
};

/// A stage over a desktop that has the functions of Cues and a clock as members of its own.
template <class Desktop>
class StageOver : public ScriptStage {
 public:
  explicit StageOver(Desktop& desktop) : stageDesktop_(desktop) {}

  screen::Desktop& desktop() override { return stageDesktop_; }
  void clock(const ado::Moment& moment) override { stageDesktop_.clock = moment; }
  void follow(Cues cues) override {
    stageDesktop_.whileShown = std::move(cues.whileShown);
    stageDesktop_.onMessage = std::move(cues.onMessage);
    stageDesktop_.onList = std::move(cues.onList);
    stageDesktop_.onFile = std::move(cues.onFile);
    stageDesktop_.onClosed = std::move(cues.onClosed);
  }
  const std::vector<screen::Form*>& forms() const override { return stageDesktop_.forms(); }

 private:
  Desktop& stageDesktop_;
};

}  // namespace korvantes::scripts
