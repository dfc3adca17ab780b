// Windows names and UTF-8 text by characters.
#include "platform/windows_path.h"

#include "platform/utf8.h"

#include <gtest/gtest.h>

namespace veritane::platform {
namespace {

TEST(WindowsPath, LeafAndFolderPartAtTheLastBackslash) {
  EXPECT_EQ(LeafName("C:\\x\\Tablet A.clm"), "Tablet A.clm");
  EXPECT_EQ(FolderOf("C:\\x\\Tablet A.clm"), "C:\\x");
  EXPECT_EQ(LeafName("plain"), "plain");
  EXPECT_EQ(FolderOf("plain"), "");
}

TEST(WindowsPath, NamesThatNoFileMayHaveAreRefusedWithAReason) {
  for (const char* name : {"", ".", "..", "a\\b", "a/b", "a:b", "a*", "a?", "\"a\"", "<a", "a>", "a|b",
                           "a\tb", "a ", "a.", "CON", "nul.txt", "com1", "LPT9.bsp"}) {
    EXPECT_NE(WhyNotAFileName(name), "") << name;
  }
  for (const char* name : {"ASPIRIN", "Säure 5%", "com10", "console", "a.b", "-1", "LOT 12,5"}) {
    EXPECT_EQ(WhyNotAFileName(name), "") << name;
  }
}

TEST(WindowsPath, LettersCompareInUpperCaseAlsoWithAccents) {
  EXPECT_EQ(UpperCase("aspirin-ä é ÿ ő ž ß"), "ASPIRIN-Ä É Ÿ Ő Ž ß");
  EXPECT_EQ(UpperCase("ά έ ή ί ό ύ ώ ΐ"), "Ά Έ Ή Ί Ό Ύ Ώ ΐ");
  EXPECT_EQ(UpperCase("\xFF\xFE"), "ŸÞ") << "damaged bytes count as the characters of their numbers";
}

TEST(Utf8, TextIsCountedAndCutByCharactersWhateverTheBytes) {
  EXPECT_EQ(CharacterCount("Zürich€"), 7U);
  EXPECT_EQ(Characters("Zürich€", 1, 2), "ür");
  EXPECT_EQ(Characters("LOT999-ASPIRIN-2025", 7, 7), "ASPIRIN");
  EXPECT_EQ(Characters("short", 2, 99), "ort");
  EXPECT_EQ(Characters("short", 9, 1), "");
  EXPECT_FALSE(IsUtf8("\xC0\x80")) << "overlong";
  EXPECT_FALSE(IsUtf8("\xED\xA0\x80")) << "a surrogate";
  EXPECT_EQ(CharacterCount("a\xC3"), 2U) << "a broken end counts";
}

}  // namespace
}  // namespace veritane::platform
