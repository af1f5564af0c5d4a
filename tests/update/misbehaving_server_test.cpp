// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever a server does wrong, the error says what happened and the folder stays as it was, to the byte.
#include "core/work_files.h"
#include "transfer_test.h"

#include <algorithm>
#include <iterator>

namespace tallywick::test {
namespace {

using namespace std::chrono_literals;

const std::string first = "-rw-r--r-- 1 o g 3 Nov 21 10:35 first.Dat\r\n";
const std::string draws = "-rw-r--r-- 1 o g 20000 Nov 21 10:35 QZRNUM6.Dat\r\n";

class BadServer : public TransferTest {
 protected:
  BadServer() {
    settings.times = patientTimes;
    watch.onLook = [this] {
      EXPECT_FALSE(scratch.exists(join(pwrHere, lockName))) << "the lock is taken before all has come";
    };
    settings.limits = {10, 50'000, 60'000};
    putText(tree.root() / "first.Dat", "one");
    putText(tree.root() / "QZRNUM6.Dat", std::string(20'000, 'd'));
  }
  void download(const std::string& fault, const std::string& list) {
    putText(tree.root() / "fault", fault);
    putText(tree.root() / "LIST", list);
    connected(server.address())->download("/D:/QZR/", "*.*", pwrHere);
  }
  auto commands(const std::string& command) {
    std::istringstream log(textOf(tree.root() / "log"));
    return std::count(std::istream_iterator<std::string>(log), {}, command);
  }

  ScratchFolder tree;
  const ServerProcess server{"bad_server.py", {tree.root().string()}};
};

/// So many looks at the window come in some seconds, on a loaded machine in more.
constexpr int patience = 150;

struct Misdeed {
  /// As the server's script knows it.
  const char* fault;
  std::string list;
  const char* error;
};

TEST_F(BadServer, LeavesTheFolderAsItWas) {
  const char* const otherLength = "\"QZRNUM6.Dat\" has another length than the server announced";
  const char* const stalled = "timed out, the transfer stalled in the middle of \"QZRNUM6.Dat\"";
  for (const Misdeed& misdeed : std::initializer_list<Misdeed>{
           {"silent", "", "timed out while waiting for an answer to the login"},
           {"full", "", "the server is busy or closing down"},
           {"closing", "", "the server is busy or closing down"},
           {"deny", "", "login denied"},
           {"no folder", "", "the server does not open the folder \"/D:/QZR/\""},
           {"none", first + "-rw-r--r-- 1 o g 20000 Nov 21 10:35 QZRN",
            "the server's list of files is cut short or not understood"},
           {"broken list", first, "interrupted in the middle of \"/D:/QZR/\""},
           {"none", first + "-rw-r--r-- 1 o g 3 Nov 21 10:35 ../../evil\r\n",
            "the server lists \"../../evil\", which is not a plain file name"},
           {"none", first + "-rw-r--r-- 1 o g 3 Nov 21 10:35 g\xFF\xFEne\r\n",
            "the server did not send \"g??ne\""},
           {"drop", draws, "connection lost during \"QZRNUM6.Dat\""},
           {"short", draws, otherLength},
           {"none", first + "-rw-r--r-- 1 o g 19999 Nov 21 10:35 QZRNUM6.Dat\r\n", otherLength},
           {"long", draws, otherLength},
           {"stall", draws, stalled},
           {"no end", draws, stalled},
           {"no answer", draws, "timed out while waiting for an answer to \"QZRNUM6.Dat\""},
           {"drip", draws, "timed out, too slow: \"QZRNUM6.Dat\""},
           {"endless", draws, "too large: \"QZRNUM6.Dat\""}}) {
    SCOPED_TRACE(misdeed.fault + (": " + misdeed.list));
    watch.looks = 0;
    settings.times = timesFor(misdeed.error);
    EXPECT_EQ(errorOf([&] { download(misdeed.fault, misdeed.list); }),
              join("The transfer failed: ", misdeed.error));
    EXPECT_EQ(scratch.snapshot(), before);
    EXPECT_FALSE(scratch.exists(join(pwrHere, lockName)));
    EXPECT_TRUE(misdeed.error != stalled || watch.looks > 8) << "the window was not painted meanwhile";
    EXPECT_LT(watch.looks, patience);
  }
}

TEST_F(BadServer, IsAskedForALengthThatItsListDoesNotTell) {
  putText(tree.root() / "MLSD", "type=file; QZRNUM6.Dat\r\n");
  for (const char* fault : {"long", "short"}) {
    EXPECT_THAT(errorOf([&] { download(fault, ""); }), testing::HasSubstr("another length")) << fault;
  }
  EXPECT_EQ(scratch.snapshot(), before);
  download("none", "");
  EXPECT_EQ(get("qzrnum6.dat"), std::string(20'000, 'd'));
}

TEST_F(BadServer, IsUnderstoodWithoutTheExtendedCommands) {
  download("no epsv", first + draws);
  EXPECT_EQ(get("qzrnum6.dat"), std::string(20'000, 'd'));
  EXPECT_EQ(get("first.Dat"), "one");
}

TEST_F(BadServer, HasTheTimeOfAnAnswerForEachStepOfTheLogin) {
  settings.times = {300ms, 1100ms, 500ms};
  download("slow", first);
  EXPECT_EQ(get("first.Dat"), "one");
}

TEST_F(BadServer, HasOneLimitForAWholeFolder) {
  settings.times.folder = 700ms;
  std::string list;
  for (const std::string name : {"1", "2", "3", "4", "5", "6"}) {
    putText(tree.root() / name, "one");
    list += "-rw-r--r-- 1 o g 3 Nov 21 10:35 " + name + "\r\n";
  }
  EXPECT_THAT(errorOf([&] { download("crawl", list); }), testing::HasSubstr("the folder takes too long"));
  EXPECT_EQ(scratch.snapshot(), before);
}

TEST_F(BadServer, IsFoundWhereTheFirstOfItsAddressesIsSilent) {
  putText(tree.root() / "LIST", first);
  putText(tree.root() / "fault", "none");
  const std::string port = server.address().substr(server.address().find(':') + 1);
  settings.addresses = join("two.test:", port, ":127.0.0.2,127.0.0.1");
  settings.times.connect = 800ms;
  connected(join("two.test:", port))->download("/", "*.*", pwrHere);
  EXPECT_EQ(get("first.Dat"), "one");
}

TEST_F(BadServer, IsLeftByWhoeverCancels) {
  settings.times.stall = 20s;
  for (const int look : {1, 3, 15}) {
    watch.cancelAt = watch.looks + look;
    EXPECT_THROW(download("stall", first + draws), TransferCancelled);
    EXPECT_EQ(scratch.snapshot(), before);
  }
}

TEST_F(BadServer, NeedNotAnswerTheFarewell) {
  settings.times = hurriedTimes;
  download("no farewell", first);
  EXPECT_EQ(get("first.Dat"), "one");
  EXPECT_LT(watch.looks, patience);
  // One from the change to the other kind of listing, one at the end.
  EXPECT_EQ(commands("QUIT"), 2);
  EXPECT_GT(watch.looks, 30) << "the window was not painted meanwhile";
}

TEST_F(BadServer, GetsNoLoginWithoutTlsWhereThatIsRequired) {
  settings.tlsRequired = true;
  EXPECT_EQ(errorOf([&] { download("none", first); }),
            "The transfer failed: the server offers no TLS, which the settings require");
  EXPECT_EQ(textOf(tree.root() / "log").find("USER"), std::string::npos);
}

TEST_F(BadServer, IsUnderstoodWithTlsWhereItsCertificateIsTrusted) {
  // Wine trusts all certificates where none is named, and does not take up a session again.
  if (!hasPosixFiles) GTEST_SKIP() << "needs the TLS of Windows itself";
  makeCertificate((tree.root() / "certificate").string());
  settings.tlsRequired = true;
  EXPECT_EQ(errorOf([&] { download("none", first); }),
            "The transfer failed: the server's certificate is not trusted");
  EXPECT_EQ(textOf(tree.root() / "log").find("USER"), std::string::npos);
  settings.certificates = (tree.root() / "certificate").string();
  download("none", first + draws);
  EXPECT_EQ(get("qzrnum6.dat"), std::string(20'000, 'd'));
  EXPECT_NE(textOf(tree.root() / "log").find("PROT P\n"), std::string::npos);
}

TEST_F(BadServer, OrNoneAtAllIsTold) {
  std::string address;
  { address = ServerProcess("bad_server.py", {tree.root().string()}).address(); }
  EXPECT_EQ(errorOf([&] { connected(hasPosixFiles ? address : "127.0.0.1:1"); }),
            "The transfer failed: connection refused");
  for (const char* host : {"", "a b", "user:word@127.0.0.1", "127.0.0.1/x", "http://127.0.0.1", "::1::"}) {
    EXPECT_EQ(errorOf([&] { connected(host); }),
              "The transfer failed: the update server's address is not valid")
        << host;
  }
  EXPECT_EQ(errorOf([&] { connected("no..body"); }),
            "The transfer failed: the update server's address is not known");
  EXPECT_EQ(scratch.snapshot(), before);
}

}  // namespace
}  // namespace tallywick::test
