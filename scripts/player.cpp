#include "scripts/player.h"

#include <exception>
#include <utility>

#include "scripts/actions.h"
#include "scripts/office_objects.h"

namespace korvantes::scripts {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// The lines that are not blank, without their leading blanks.
std::deque<std::string> linesOf(std::string_view script) {
  if (script.starts_with(kByteOrderMark)) script.remove_prefix(kByteOrderMark.size());
  std::deque<std::string> lines;
  while (!script.empty()) {
    std::string_view line = script.substr(0, script.find('\n'));
    script.remove_prefix(line.size() == script.size() ? line.size() : line.size() + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    const auto first = line.find_first_not_of(" \t");
    if (first != std::string_view::npos) lines.emplace_back(line.substr(first));
  }
  return lines;
}

}  // namespace

Player::Player(Stage& stage, ado::Connection& base, Screens screens, std::ostream& out,
               std::filesystem::path folder)
    : stage_(stage),
      formerDesktop_(screen::Desktop::makeCurrent(&stage.desktop())),
      screens_(std::move(screens)),
      transcript_(out),
      answers_(transcript_),
      pictures_(stage, transcript_, folder),
      run_{stage, base, screens_, transcript_, answers_, pictures_} {
  offerDocumentsInFolder(office::objectsOf(stage_.desktop()), std::move(folder), transcript_);
  const auto answer = [this](const auto& dialog) {
    const auto reply = answers_.answer(dialog);
    pictures_.dialogShown();
    return reply;
  };
  stage_.whileShown = [this](screen::Form& form) { playTopForm(form); };
  stage_.onMessage = answer;
  stage_.onList = answer;
  stage_.onFile = [this](const screen::FileDialog& dialog) { return answers_.answer(dialog); };
  stage_.onClosed = [this](const screen::Form& form) {
    transcript_.happening("cerrado", form.name());
  };
}

Player::~Player() {
  stage_.cues() = {};
  withdrawDocuments(office::objectsOf(stage_.desktop()));
  screen::Desktop::makeCurrent(formerDesktop_);
}

int Player::play(std::string_view script) {
  lines_ = linesOf(script);
  while (playNextLine()) {
  }
  return transcript_.errors();
}

/// False if the script has ended. If a line opens a screen, the lines after it are played inside
/// this call until that screen closes.
bool Player::playNextLine() {
  if (lines_.empty()) return false;
  const std::string line = std::move(lines_.front());
  lines_.pop_front();
  transcript_.action(line);
  if (line.starts_with('#')) return true;
  try {
    performAction(run_, line);
  } catch (const std::exception& failure) {
    transcript_.error(failure.what());
  }
  return true;
}

void Player::playTopForm(screen::Form& form) {
  if (playNextLine()) return;
  stage_.user().close();
  form.Unload();
}

}  // namespace korvantes::scripts
