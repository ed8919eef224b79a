#include "controls/text_file.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <thread>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <chrono>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

class TextFile : public testing::Test {
 public:
  TextFile() { fs::create_directories(folder_); }
  ~TextFile() override { fs::remove_all(folder_); }

  static void Put(const fs::path& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
  }
  static std::string Read(const fs::path& file) {
    return ReadTextFile(file, 1'000'000).value_or("none");
  }

  // What lies in the folder, sorted by name.
  std::vector<fs::path> Names() const {
    std::vector<fs::path> names;
    for (const auto& entry : fs::directory_iterator(folder_)) {
      names.push_back(entry.path().filename());
    }
    std::ranges::sort(names);
    return names;
  }

  const fs::path folder_ = fs::path(testing::TempDir()) / u8"tarnwick \u00E9 \u65E5" /
                           std::to_string(std::random_device()());
  const fs::path file_ = folder_ / u8"log \u00E9 \u65E5.txt";
};

TEST_F(TextFile, NeighboursStayAndNothingIsLeftBehind) {
  fs::path draft = file_;
  draft += ".new";
  const fs::path notes = folder_ / ".tnwk-draft-notes of mine";
  fs::create_directory(notes);
  Put(draft, "another's");
  Put(notes / "draft", "mine");
  const std::string with_zero("seco\0nd\r\n", 9);
  for (const std::string& text : {std::string("first"), with_zero}) {
    EXPECT_EQ(WriteTextFile(file_, text), "");
    EXPECT_EQ(Read(file_), text);
  }
  EXPECT_EQ(Read(draft), "another's");
  EXPECT_EQ(Read(notes / "draft"), "mine");
  EXPECT_EQ(Names(), (std::vector<fs::path>{notes.filename(), file_.filename(), draft.filename()}));
}

TEST_F(TextFile, WhatIsNoFileToBeWrittenIsRefusedAndStays) {
  Put(file_, "kept");
  fs::permissions(file_, fs::perms(0444));
  const fs::path folder = folder_ / "folder";
  fs::create_directory(folder);
  std::vector<fs::path> refused = {file_, folder, folder_ / "none" / "log.txt"};
#ifndef _WIN32
  refused.insert(refused.end(), {folder_ / "fifo", folder_ / "loop"});
  ASSERT_EQ(mkfifo(refused[3].c_str(), 0600), 0);
  fs::create_symlink(refused[4], refused[4]);
#endif
  const std::vector<fs::path> before = Names();
  for (const fs::path& path : refused) {
    EXPECT_NE(WriteTextFile(path, "text"), "") << path;
    EXPECT_NE(AppendToTextFile(path, "text"), "") << path;
  }
  EXPECT_EQ(Names(), before);
  EXPECT_EQ(Read(file_), "kept");
  EXPECT_TRUE(fs::is_empty(folder));
  fs::permissions(file_, fs::perms(0644));
}

// Without turns, one addition would often replace another.
TEST_F(TextFile, AdditionsAtTheSameTimeAllSurvive) {
  Put(file_, "begun");  // a line that has no end
  std::vector<std::thread> programs;
  for (const char sign : {'a', 'b', 'c'}) {
    programs.emplace_back([this, sign] {
      for (int i = 0; i < 10; ++i) EXPECT_EQ(AppendToTextFile(file_, std::string(1000, sign)), "");
    });
  }
  for (std::thread& program : programs) program.join();
  const std::string text = Read(file_);
  EXPECT_TRUE(text.starts_with("begun\r\n"));
  for (const char sign : {'a', 'b', 'c'})
    EXPECT_EQ(std::ranges::count(text, sign), 10000 + (sign == 'b'));
  EXPECT_EQ(Names().size(), 1U);
}

#ifndef _WIN32

TEST_F(TextFile, LinkLeadsToTheFileThatIsWritten) {
  fs::create_directory(folder_ / "far");
  fs::create_directory_symlink("far", folder_ / "near");
  fs::create_symlink("near/second", folder_ / "first");
  fs::create_symlink("../log.txt", folder_ / "far" / "second");
  for (const char* const text : {"new", "replaced"}) {
    EXPECT_EQ(WriteTextFile(folder_ / "first", text), "");
    EXPECT_EQ(Read(folder_ / "log.txt"), text);
  }
  EXPECT_TRUE(fs::is_symlink(folder_ / "first"));
  EXPECT_TRUE(fs::is_symlink(folder_ / "far" / "second"));
}

TEST_F(TextFile, FileKeepsItsPermissions) {
  for (const unsigned mode : {0600U, 0664U, 0755U}) {
    Put(file_, "");
    fs::permissions(file_, fs::perms(mode));
    EXPECT_EQ(WriteTextFile(file_, "text"), "");
    EXPECT_EQ(fs::status(file_).permissions(), fs::perms(mode));
  }
}

TEST_F(TextFile, OldDraftsAndTurnsOfOursAreRemoved) {
  struct Case {
    const char* name;
    std::chrono::seconds age;
    bool stays;
  };
  using namespace std::chrono_literals;
  constexpr Case kTable[] = {
      {".tnwk-draft-0123456789abcdef", 25h, false},
      {".tnwk-draft-fedcba9876543210", 23h, true},
      {".tnwk-draft-fedcba987654321", 25h, true},
      {".tnwk-draft-0123456789ABCDEF", 25h, true},
      {".tnwk-turn-0123456789abcdef", 11s, false},
      // The clock has been set back.
      {".tnwk-draft-0123456789abcdee", -25h, false},
      {".tnwk-turn-0123456789abcdee", -11s, false},
  };
  for (const auto& [name, age, stays] : kTable) {
    fs::create_directory(folder_ / name);
    Put(folder_ / name / "draft", "half");
    fs::last_write_time(folder_ / name, fs::file_time_type::clock::now() - age);
  }
  EXPECT_EQ(AppendToTextFile(file_, "text"), "");
  for (const auto& [name, age, stays] : kTable)
    EXPECT_EQ(fs::exists(folder_ / name), stays) << name;
  EXPECT_EQ(Read(file_), "text");
}

// As on a full disk.
TEST_F(TextFile, FailedWriteLeavesTheEarlierFile) {
  Put(file_, "earlier\n");
  signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit small{100, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  const std::string failures[] = {WriteTextFile(file_, std::string(101, 'x')),
                                  AppendToTextFile(file_, std::string(93, 'x')),
                                  AppendToTextFile(file_, std::string(92, 'x'))};
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_THAT(failures, testing::ElementsAre("File too large", "File too large", ""));
  EXPECT_EQ(Read(file_), "earlier\n" + std::string(92, 'x'));
  EXPECT_EQ(Names().size(), 1U);
}

TEST_F(TextFile, KillDuringAWriteLeavesAWholeFile) {
  const std::string texts[] = {std::string(20000, 'a'), std::string(20001, 'b')};
  int found[] = {0, 0};
  std::uintmax_t drafts_left = 0;
  Put(file_, texts[0]);
  int written[2];
  ASSERT_EQ(pipe(written), 0);
  for (int round = 0; round < 150; ++round) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      WriteTextFile(file_, texts[1]);
      if (write(written[1], "", 1) != 1) _exit(1);
      for (int i = 2; i < 1000000; ++i) WriteTextFile(file_, texts[i % 2]);
      _exit(0);
    }
    char first = 0;
    ASSERT_EQ(read(written[0], &first, 1), 1);
    std::this_thread::sleep_for(std::chrono::microseconds(round * 7919 % 2000));
    kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));

    const std::string text = Read(file_);
    const auto* const whole = std::ranges::find(texts, text);
    ASSERT_NE(whole, std::end(texts)) << "round " << round << ": " << text.size() << " bytes";
    ++found[whole - texts];
    for (const fs::path& name : Names()) {
      if (name != file_.filename()) drafts_left += fs::remove_all(folder_ / name);
    }
  }
  close(written[0]);
  close(written[1]);
  // The kills did strike, inside writes and after either of the two.
  EXPECT_GT(drafts_left, 0U);
  EXPECT_THAT(found, testing::Each(testing::Gt(0)));
}

#else

TEST_F(TextFile, FileThatAnotherProgramHoldsStaysAndIsWrittenOnceItIsFree) {
  std::string text = "earlier\n";
  Put(file_, text);
  for (const DWORD shared : {0, FILE_SHARE_READ, FILE_SHARE_READ | FILE_SHARE_WRITE}) {
    const HANDLE held = CreateFileW(file_.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    EXPECT_NE(WriteTextFile(file_, "text"), "") << shared;
    EXPECT_NE(AppendToTextFile(file_, "text"), "") << shared;
    CloseHandle(held);
    EXPECT_EQ(Read(file_), text) << shared;
    EXPECT_EQ(Names().size(), 1U) << shared;
    EXPECT_EQ(AppendToTextFile(file_, "more\n"), "");
    text += "more\n";
    EXPECT_EQ(Read(file_), text);
  }
}

#endif

}  // namespace
}  // namespace tarnwick
