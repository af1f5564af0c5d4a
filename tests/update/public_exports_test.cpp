// SPDX-License-Identifier: GPL-3.0-or-later
// What public exports bring to a game's folder, and that whatever else comes changes nothing.
#include "update/public_exports.h"

#include "core/day.h"
#include "setup/new_folder.h"
#include "support/raised.h"
#include "transfer_test.h"

namespace tallywick::test {
namespace {

using namespace std::chrono_literals;

constexpr const char* pwrHead = "Draw Date,Winning Numbers,Multiplier\n";
constexpr const char* megHead = "Draw Date,Winning Numbers,Mega Ball,Multiplier\n";
const Day newest = dayOf(2026, 11, 18);

/// Draws of so many days up to `last`, newest first.
std::string exported(Game game, int count, Day last = newest) {
  std::string csv = game == Game::powerBall ? pwrHead : megHead;
  const char* numbers = game == Game::powerBall ? ",10 20 30 40 50 06,2\n" : ",10 20 30 40 50,06,2\n";
  for (Day day = last; count > 0; day += -1, --count) csv += displayDate(day) + numbers;
  return csv;
}

class Exports : public testing::Test {
 protected:
  Exports() {
    settings.times = patientTimes;
    settings.certificates = file("authority");
    makeCertificate(settings.certificates);
    makeCertificate(file("certificate"), thisComputer, settings.certificates);
    server = std::make_unique<ServerProcess>("web_server.py",
                                             std::vector<std::string>{file("certificate"), file("log")});
    put("pwr.csv", exported(Game::powerBall, 230));
    put("meg.csv", exported(Game::megaMillions, 110));
  }

  std::string file(const std::string& name) const { return (web.root() / name).string(); }
  void put(const std::string& name, const std::string& text) const { putText(file(name), text); }
  std::string addressOf(const std::string& path) const { return "https://" + server->address() + "/" + path; }
  void get(const std::string& path, const char* serverFolder = "/D:/QZR/Z1-PWR/QZR6/",
           const char* localFolder = R"(QZRNUMBERS\QZR6PWR\)") {
    const auto component = newPublicExports(scratch.folder(), clock, settings, &watch);
    component->prepare();
    component->setHost(addressOf(path));
    component->openSession();
    component->download(serverFolder, "*.*", localFolder);
  }
  std::string errorOf(const std::string& path) {
    try {
      get(path);
    } catch (const RuntimeError& error) {
      std::string text = error.description();
      const std::size_t at = text.find(addressOf(path));
      return at == std::string::npos ? text : text.replace(at, addressOf(path).size(), "ADDRESS");
    }
    return "";
  }
  /// How many requests had a line that begins so.
  std::size_t asked(std::string_view header) const {
    const std::string log = textOf(file("log"));
    std::size_t count = 0;
    for (std::size_t at = log.find(header); at != std::string::npos; at = log.find(header, at + 1)) ++count;
    return count;
  }
  std::string draws() const { return scratch.read("QzrNumbers/QZR6PWR/QZRNUM6.Dat"); }

  ScratchFolder web;
  ScratchFolder scratch;
  FixedClock clock{"11-21-2026", "18:15:00"};
  CountingWatch watch;
  FetchSettings settings;
  std::unique_ptr<ServerProcess> server;
};

TEST_F(Exports, BringDrawsToTheGameWhoseFolderIsAskedFor) {
  scratch.write("QzrNumbers/QZR6MEG/SAMPLE.TXT", "");
  scratch.write("QzrNumbers/QZR6MEG/QZRNUM6.Dat", records({"11,20,2026,01,02,03,04,05,06,2"}));
  get("file/pwr.csv", "/D:/QZR/Z1-Pwr/Qzr6/");
  EXPECT_EQ(std::ranges::count(draws(), '\n'), 230);
  get("file/meg.csv", "/d:/qzr/z2-meg/QZR6",
      R"(C:\Program Files\Tallywick Software\Tallywick\QzrNumbers\QZR6MEG\)");
  EXPECT_THAT(scratch.read("QzrNumbers/QZR6MEG/QZRNUM6.Dat"),
              testing::StartsWith(R"("11","18","2026","10","20","30","40","50","06","2")"))
      << "made-up draws go";
  EXPECT_FALSE(scratch.exists("QzrNumbers/QZR6MEG/SAMPLE.TXT"));
  EXPECT_THROW(get("file/pwr.csv", "/D:/QZR/Z3/Qzr6/"), RuntimeError);
  EXPECT_EQ(raisedBy([&] { get("file/pwr.csv", "/D:/QZR/Z1-Pwr/Qzr6/", R"(QzrNumbers\QZR6MEG\)"); }).number,
            76);
}

TEST_F(Exports, AreFetchedAgainOnlyWhereSomethingIsNew) {
  put("pwr.csv", exported(Game::powerBall, 230) + "01/04/2020,1 2,2\n");
  get("file/pwr.csv");
  const auto first = scratch.snapshot();
  get("file/pwr.csv");
  EXPECT_EQ(asked("If-None-Match"), 1U);
  EXPECT_EQ(scratch.snapshot(), first);
  put("pwr.csv", exported(Game::powerBall, 231, newest + 1));
  get("file/pwr.csv");
  EXPECT_THAT(draws(), testing::StartsWith(R"("11","19","2026")"));

  // A backup comes back, with the note of its time or with a newer one.
  for (const auto& [name, text] : first) scratch.write(name, text);
  get("file/pwr.csv");
  EXPECT_THAT(draws(), testing::StartsWith(R"("11","19","2026")"));
  scratch.write("QzrNumbers/QZR6PWR/QZRNUM6.Dat", first.at("QzrNumbers/QZR6PWR/QZRNUM6.Dat"));
  get("file/pwr.csv");
  EXPECT_THAT(draws(), testing::StartsWith(R"("11","19","2026")"));

  // Another address, then made-up draws: neither is what the note is good for.
  const std::size_t before = asked("If-None-Match");
  put("other.csv", exported(Game::powerBall, 231, newest + 1));
  get("file/other.csv");
  scratch.write("QzrNumbers/QZR6PWR/SAMPLE.TXT", "");
  get("file/other.csv");
  EXPECT_EQ(asked("If-None-Match"), before);
}

TEST_F(Exports, ADrawThatIsLaterThanTodayFailsAndIsAskedForAgain) {
  put("pwr.csv", exported(Game::powerBall, 120, dayOf(2026, 11, 22)));
  EXPECT_THAT(errorOf("file/pwr.csv"), testing::HasSubstr("11-22-2026 is later than today"));
  clock = FixedClock("11-22-2026", "18:15:00");
  get("file/pwr.csv");
  EXPECT_THAT(draws(), testing::StartsWith(R"("11","22","2026")"));
}

TEST_F(Exports, WithoutALastLineEndAreTakenWhereTheTransferIsWhole) {
  for (const char* path : {"file/pwr.csv", "plain/pwr.csv/length"}) {
    put("pwr.csv", exported(Game::powerBall, 120).substr(0, exported(Game::powerBall, 120).size() - 1));
    scratch.write("QzrNumbers/QZR6PWR/QZRNUM6.Dat", "");
    get(path);
    EXPECT_EQ(std::ranges::count(draws(), '\n'), 120) << path;
  }
}

TEST_F(Exports, MakeANewBookAsAWholeOrNotAtAll) {
  const DataFolder book(web.root() / "book");
  Settings addresses;
  addresses.powerBallDraws = addressOf("file/pwr.csv");
  addresses.megaMillionsDraws = addressOf("503");
  const auto make = [&] { return setup::makeFetchedFolder(book, clock, addresses, settings, &watch); };
  EXPECT_THAT(make()[1].error, testing::HasSubstr("overloaded"));
  EXPECT_FALSE(std::filesystem::exists(book.root())) << "nothing is made";

  addresses.megaMillionsDraws = addressOf("file/meg.csv");
  // A kill has left these behind.
  std::filesystem::create_directories(book.root() / "QzrNumbers.tw~" / "QzrNumbers" / "QZR6PWR");
  EXPECT_EQ(make()[0].report.newDraws, 230U);
  EXPECT_FALSE(std::filesystem::exists(book.root() / "QzrNumbers.tw~"));
  EXPECT_EQ(readSettings(book), addresses);
  for (const char* name : {"QZR6MEG/QZRNUM62.Dat", "QZR6MEG/QZR6MEG1.Ply", "QZR6PWR/QZR6PWR9.Sel"}) {
    EXPECT_TRUE(book.exists(join("QzrNumbers/", name))) << name;
  }
  EXPECT_THROW(make(), std::runtime_error) << "somebody's book";
  for (const GameFetch& again : fetchDraws(book, clock, setup::exportAddresses(addresses), settings)) {
    EXPECT_TRUE(again.isUnchanged && again.error.empty()) << again.error;
  }
}

TEST_F(Exports, OfAGameThatFailsLeaveTheOtherAloneAndACancelLeavesBoth) {
  const std::vector<ExportAddress> addresses = {{Game::powerBall, addressOf("404")},
                                                {Game::megaMillions, addressOf("file/meg.csv")}};
  const auto before = scratch.snapshot();
  watch.cancelAt = 2;
  EXPECT_THROW(fetchDraws(scratch.folder(), clock, addresses, settings, &watch), TransferCancelled);
  EXPECT_EQ(scratch.snapshot(), before);
  const std::vector<GameFetch> results = fetchDraws(scratch.folder(), clock, addresses, settings);
  EXPECT_THAT(results[0].error, testing::HasSubstr("(404)"));
  EXPECT_EQ(results[1].report.newDraws, 110U);
}

TEST_F(Exports, ThatCannotBeUsedChangeNothing) {
  get("file/pwr.csv");
  const auto before = scratch.snapshot();
  const std::string whole = exported(Game::powerBall, 121, newest + 1);
  const char* const cut = "\"ADDRESS\" is cut short: its last row has no end";
  struct Row {
    std::string csv;
    std::string error;
    const char* path = "file/pwr.csv";
  };
  for (const Row& row : std::initializer_list<Row>{
           {"", "\"ADDRESS\" is not an export of draws: there is no column \"Draw Date\"", "200"},
           {"", "the server does not have \"ADDRESS\" (404)", "404"},
           {pwrHead, "\"ADDRESS\" cannot be used: there is no draw in it"},
           {whole.substr(0, whole.size() - 5), cutOff(cut, "ADDRESS"), "plain/pwr.csv"},
           {whole + "\"01/02/2020\",\"\n", cut},
           {whole, "interrupted in the middle of \"ADDRESS\"", "cut/pwr.csv"},
           {exported(Game::powerBall, 114, newest + 1),
            "\"ADDRESS\" cannot be used: it has 114 draws, fewer than half of the 230 that are known "
            "already"}}) {
    put("pwr.csv", row.csv);
    EXPECT_EQ(errorOf(row.path), join("The transfer failed: ", row.error));
    EXPECT_EQ(scratch.snapshot(), before) << row.error;
  }
}

}  // namespace
}  // namespace tallywick::test
