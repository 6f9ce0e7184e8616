#include "host/desktop/reasons.h"

#include <gtest/gtest.h>

#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

class reasons : public testing::Test {
 protected:
  void TearDown() override { choose_language(language::english); }
};

TEST_F(reasons, are_said_in_the_language_in_force_and_files_as_they_are_named) {
  struct {
    const char *given, *russian;
  } cases[] = {{"a.tif: no such file", "a.tif: файла нет"},
               {"no such file", "файла нет"},
               {"is empty: odd", "файл пуст: odd"},
               {"is empty.tif: no such file", "is empty.tif: файла нет"},
               {"a.zgp: is no XML: line 1", "a.zgp: это не XML: line 1"},
               {"a.tif: no such file at all", "a.tif: no such file at all"},
               {"", ""}};
  for (const auto& each : cases) {
    choose_language(language::english);
    EXPECT_EQ(reason_in_words(each.given).toStdString(), each.given);
    choose_language(language::russian);
    EXPECT_EQ(reason_in_words(each.given).toStdString(), each.russian);
  }
}

}  // namespace
}  // namespace zu::desktop
