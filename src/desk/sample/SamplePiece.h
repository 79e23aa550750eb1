#pragma once

#include <vector>

#include "desk/firebird/FirebirdLink.h"
#include "desk/sample/SampleBooks.h"
#include "desk/sample/SampleCheques.h"
#include "desk/sample/SampleMasters.h"

namespace quillon {

/// A year as far as it is written: its accounts and all its vouchers.
struct SampleYearSoFar {
  FirebirdLink& Link;
  const SampleMasters& Masters;
  const SampleBooks& Books;
  const SampleCheques& Cheques;
  Date Start;
  Date End;
};

/// What a part of the desk has in the sample firm beside accounts and vouchers. It draws no random numbers of
/// the others', so that their figures stay what they are.
struct SamplePiece {
  int Place;  ///< its order among the pieces
  void (*Write)(const SampleYearSoFar&);
  void (*WriteCommon)(FirebirdLink& common) = nullptr;  ///< what it has in the database of all years
};

/// Those of all files NAME.sample.cpp, in the order of their places.
std::vector<SamplePiece> SamplePieces();

}  // namespace quillon
