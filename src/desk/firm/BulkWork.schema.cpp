#include "desk/firm/SchemaSteps.h"

namespace quillon {

/// What bulk work leaves in the common database, which no bulk work changes: whose turn it is, the journal
/// with its copies, and where the years lie since the firm was taken back to a copy.
SchemaStep BulkWorkSchema() {
  return {20,
          SchemaStep::Database::kCommon,
          2,
          {"create table BulkTurn (TurnNo integer not null, Program varchar(120), Connection bigint, "
           "UserName varchar(40), Since varchar(19), Doing varchar(200), AllLeave smallint default 0, "
           "constraint PK_BulkTurn primary key (TurnNo))",
           "create table BulkRuns (RunNo integer not null, BeganAt varchar(19), EndedAt varchar(19), "
           "UserName varchar(40), FormKey varchar(40), Screen varchar(60), AccountCode integer, "
           "AccountName varchar(130), Choices blob sub_type text, Told blob sub_type text, "
           "Outcome varchar(20), constraint PK_BulkRuns primary key (RunNo))",
           "create table BookCopies (RunNo integer not null, StartYear integer not null, "
           "FileName varchar(200), FileSize bigint, MadeAt varchar(19), Gone smallint default 0, "
           "constraint PK_BookCopies primary key (RunNo,StartYear))",
           "create table YearPlaces (StartYear integer not null, FileName varchar(200) not null, "
           "constraint PK_YearPlaces primary key (StartYear))"}};
}

}  // namespace quillon
