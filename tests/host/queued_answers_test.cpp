#include "host/queued_answers.h"

#include <gtest/gtest.h>
#include <sstream>

namespace korvantes::host {
namespace {

using Button = QueuedAnswers::Button;
using screen::Answer;

class QueuedAnswersTest : public testing::Test {
 protected:
  std::ostringstream out_;
  Transcript transcript_{out_};
  QueuedAnswers answers_{transcript_};
};

TEST_F(QueuedAnswersTest, AMessageGetsTheFirstButtonThatWasQueuedIfItHasIt) {
  constexpr int kYesNo = screen::style::YesNo;
  constexpr int kSecond = kYesNo + screen::style::DefaultSecond;
  const struct {
    int style;
    std::optional<Button> queued;
    Answer answer;
    bool byEnter;
    bool error;
  } cases[] = {
      {0, std::nullopt, Answer::Ok, false, false},
      {0, Button::Ok, Answer::Ok, false, false},
      {0, Button::EnterKey, Answer::Ok, true, false},
      {0, Button::Yes, Answer::Ok, false, true},
      {kYesNo, std::nullopt, Answer::Yes, false, false},
      {kYesNo, Button::No, Answer::No, false, false},
      {kYesNo, Button::Ok, Answer::Yes, false, true},
      {kSecond, std::nullopt, Answer::No, false, false},
      {kSecond, Button::Yes, Answer::Yes, false, false},
      {kSecond, Button::EnterKey, Answer::No, true, false},
  };
  int errors = 0;
  for (const auto& each : cases) {
    if (each.queued) answers_.add(*each.queued);
    const auto reply = answers_.answer(screen::MessageBox{"¿Seguro?", each.style, "Título"});
    EXPECT_EQ(reply.value, each.answer) << each.style;
    EXPECT_EQ(reply.byEnter, each.byEnter) << each.style;
    errors += each.error ? 1 : 0;
    EXPECT_EQ(transcript_.errors(), errors) << each.style;
  }
}

TEST_F(QueuedAnswersTest, ListsAndFilesAreLeftUnlessAnswered) {
  screen::ListDialog list;
  list.title = "Buscar";
  list.rows = {{"1", "Ana"}, {"2", "Luis"}};
  EXPECT_FALSE(answers_.answer(list).value);
  answers_.add(QueuedAnswers::ListChoice{2, true});
  answers_.add(QueuedAnswers::ListChoice{std::nullopt, true});
  answers_.add(QueuedAnswers::ListChoice{3, false});
  const auto chosen = answers_.answer(list);
  EXPECT_EQ(chosen.value, 1U);
  EXPECT_TRUE(chosen.byEnter);
  const auto left = answers_.answer(list);
  EXPECT_FALSE(left.value);
  EXPECT_TRUE(left.byEnter);
  EXPECT_FALSE(answers_.answer(list).value);
  EXPECT_EQ(transcript_.errors(), 1);

  answers_.addFile("/tmp/foto.bmp");
  answers_.addFile(std::nullopt);
  EXPECT_EQ(answers_.answer(screen::FileDialog{"Fotos|*.bmp"}), "/tmp/foto.bmp");
  EXPECT_FALSE(answers_.answer(screen::FileDialog{"Fotos|*.bmp"}));
  EXPECT_FALSE(answers_.answer(screen::FileDialog{"Fotos|*.bmp"}));
}

}  // namespace
}  // namespace korvantes::host
