#include "gen/write/files.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace xfm::gen {
namespace {

class Write : public testing::Test {
 protected:
  Write() { std::filesystem::remove_all(folder); }
  ~Write() override { std::filesystem::remove_all(folder); }

  const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "xfm_write_test";
  const std::filesystem::path path = folder / "deeper" / "file.txt";
};

TEST_F(Write, OnlyWhatChanges) {
  EXPECT_TRUE(write_if_changed(path, "one\n"));
  const auto long_ago = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
  std::filesystem::last_write_time(path, long_ago);
  const auto before = std::filesystem::last_write_time(path);
  EXPECT_FALSE(write_if_changed(path, "one\n"));
  EXPECT_EQ(std::filesystem::last_write_time(path), before) << "rewritten without need";
  EXPECT_TRUE(write_if_changed(path, "two\n"));
  EXPECT_NE(std::filesystem::last_write_time(path), before);
  EXPECT_EQ(read_file(path), "two\n");
}

TEST_F(Write, EveryByteCounts) {
  const std::string text("a\0b\r\n", 5);
  EXPECT_TRUE(write_if_changed(path, text));
  EXPECT_EQ(read_file(path), text);
  EXPECT_TRUE(write_if_changed(path, text.substr(0, 4))) << "shorter";
  EXPECT_EQ(read_file(path), text.substr(0, 4));
  EXPECT_TRUE(write_if_changed(path, ""));
  EXPECT_FALSE(write_if_changed(path, ""));
}

TEST_F(Write, NamesTheFileThatItCannotWrite) {
  std::filesystem::create_directories(path);
  try {
    write_if_changed(path, "text");
    FAIL() << "wrote to a folder";
  } catch (const std::runtime_error& error) {
    EXPECT_NE(std::string(error.what()).find(path.string()), std::string::npos) << error.what();
  }
}

}  // namespace
}  // namespace xfm::gen
