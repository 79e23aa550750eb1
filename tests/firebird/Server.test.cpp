#include <gtest/gtest.h>

#include "desk/firebird/FirebirdLink.h"
#include "host/data/CDataSet.h"
#include "host/values/Errors.h"
#include "tests/support/FirebirdServer.h"

namespace quillon {
namespace {

TEST(Server, TheDeskGoesOnWhenTheServerIsBack) {
  if (!FirebirdServer::IsInstalled()) GTEST_SKIP() << "the Firebird server is not installed";
  FirebirdServer server;
  FirebirdAttachment::Create(server.Address("books.fdb"));
  const auto link = FirebirdLink::Open(server.Address("books.fdb"), "2024");
  link->Execute("create table entries (id int not null primary key, mark varchar(10))");
  for (int i = 1; i <= 100; ++i) link->Execute("insert into entries values (" + std::to_string(i) + ",'N')");
  link->Execute("insert into entries select 1000*a.id+b.id,'N' from entries a, entries b");
  CDataSet set;
  set.Open("select * from entries order by id", *link);

  server.Stop();
  std::string state;
  const auto update = [&](int id) {
    try {
      link->Execute("Update entries set mark='Y' where id=" + std::to_string(id));
      state = "stored";
    } catch (const DbError& error) {
      state = error.SqlState().substr(0, 2);
      EXPECT_NE(error.Statement().find("Update entries"), std::string::npos);
    }
  };
  update(1);
  EXPECT_EQ(state, "08");
  update(1);
  EXPECT_EQ(state, "08") << "still away";
  EXPECT_EQ(set.Field("id").ToInteger(), 1) << "rows that were read stay readable";
  EXPECT_THROW(set.MoveLast(), DbError);

  server.Start();
  update(2);
  EXPECT_EQ(state, "stored");
  EXPECT_EQ(link->Lookup("entries", "list(id)", "mark='Y'").ToText(), "2");
  EXPECT_EQ(link->Lookup("entries", "count(*)", "").ToInteger(), 10100);

  link->BeginTrans();
  update(3);
  server.Stop();
  server.Start();
  update(4);
  update(5);
  EXPECT_EQ(state, "08") << "a broken transaction takes no more statements, also with the server back";
  EXPECT_THROW(link->CommitTrans(), DbError);
  EXPECT_FALSE(link->InTransaction());
  update(6);
  EXPECT_EQ(link->Lookup("entries", "list(id)", "mark='Y'").ToText(), "2,6");
}

TEST(Server, AServerThatStandsStillIsLetGo) {
  if (!FirebirdServer::IsInstalled()) GTEST_SKIP() << "the Firebird server is not installed";
  if (std::getenv("QUILLON_LONG") == nullptr) GTEST_SKIP() << "half a minute: ./test --long";
  FirebirdServer server;
  FirebirdAttachment::Create(server.Address("books.fdb"));
  const auto link = FirebirdLink::Open(server.Address("books.fdb"), "2024");
  link->Execute("create table entries (id int not null primary key)");
  server.Pause();
  try {
    link->Execute("insert into entries values (1)");
    ADD_FAILURE() << "nobody was there to store it";
  } catch (const DbError& error) {
    EXPECT_EQ(error.Why(), DbError::Reason::kLost) << error.Details();
  }
  server.GoOn();
  link->Execute("insert into entries values (2)");
  EXPECT_TRUE(link->RowExists("select * from entries where id=2"));
}

}  // namespace
}  // namespace quillon
