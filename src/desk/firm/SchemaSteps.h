#pragma once

#include <string>
#include <vector>

namespace quillon {

/// What brings one kind of database from one version of the schema to the next. Several steps may begin at
/// one version; all of them are carried out together, so what fills a table that a step makes begins at the
/// next version.
struct SchemaStep {
  enum class Database { kCommon, kYear };

  int Place;  ///< its order among the steps that begin at its version
  Database Kind;
  int From;
  std::vector<std::string> Statements;
};

/// Those of all files NAME.schema.cpp, in the order of their places.
std::vector<SchemaStep> SchemaSteps();

/// The same, made once.
const std::vector<SchemaStep>& AllSchemaSteps();

/// The version that the last step leads to; 1 without steps.
int VersionAfter(const std::vector<SchemaStep>& steps);

}  // namespace quillon
