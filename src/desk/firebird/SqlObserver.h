#pragma once

#include <cstdint>
#include <string>

#include "host/data/CDbLink.h"

namespace quillon {

/// Is told of every statement that a link has sent, after it was carried out or refused.
class SqlObserver {
 public:
  SqlObserver() = default;
  SqlObserver(const SqlObserver&) = delete;
  SqlObserver& operator=(const SqlObserver&) = delete;
  virtual ~SqlObserver() = default;

  /// `db` is the link's label: "common", or a year such as "2024". `rows` counts the rows changed, 0 for a
  /// query; `error` is empty where the statement was carried out.
  virtual void OnStatement(const CDbLink& link, const std::string& db, const std::string& sql,
                           std::int64_t rows, const std::string& error) = 0;
};

}  // namespace quillon
