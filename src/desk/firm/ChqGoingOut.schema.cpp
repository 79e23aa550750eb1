#include "desk/firm/SchemaSteps.h"

namespace quillon {

/// Leaves whose cheque was sent to a printer and of which nobody has said yet whether it is printed.
SchemaStep ChqGoingOutSchema() {
  return {
      10,
      SchemaStep::Database::kYear,
      1,
      {"create table ChqGoingOut (LeafID integer not null, VoucherID integer not null, "
       "Program varchar(120), JobName varchar(120), constraint PK_ChqGoingOut primary key (LeafID), constraint "
       "FK_ChqGoingOut_Leaf foreign key (LeafID) references ChqLeaves (ID) on delete cascade)"}};
}

}  // namespace quillon
