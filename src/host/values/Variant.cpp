#include "host/values/Variant.h"

#include <charconv>
#include <cmath>

#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr double kInt64Limit = 9223372036854775808.0;

[[noreturn]] void Mismatch() { throw HostError("Type mismatch"); }

std::string NumberText(double value) {
  char buffer[32];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return {buffer, result.ptr};
}

}  // namespace

bool Variant::IsNumeric() const {
  if (!Is<std::string>()) {
    return IsEmpty() || IsNull() || Is<bool>() || Is<std::int64_t>() || Is<double>() || Is<Amount>();
  }
  const std::string text = text::Trim(As<std::string>());
  std::size_t digits = 0;
  bool point = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c >= '0' && c <= '9') {
      ++digits;
    } else if (c == '.' && !point) {
      point = true;
    } else if (i != 0 || (c != '-' && c != '+')) {
      return false;
    }
  }
  return text.empty() || digits > 0;
}

std::int64_t Variant::ToInteger() const {
  if (Is<std::int64_t>()) return As<std::int64_t>();
  if (Is<Amount>()) return As<Amount>().Units() / 10000;
  const double value = std::trunc(ToDouble());
  if (!(value < kInt64Limit && value >= -kInt64Limit)) throw OverflowError();
  return static_cast<std::int64_t>(value);
}

double Variant::ToDouble() const {
  if (IsEmpty() || IsNull()) return 0;
  if (Is<bool>()) return As<bool>() ? -1 : 0;
  if (Is<std::int64_t>()) return static_cast<double>(As<std::int64_t>());
  if (Is<double>()) return As<double>();
  if (Is<Amount>()) return As<Amount>().ToDouble();
  if (Is<std::string>()) return Val(As<std::string>());
  Mismatch();
}

Amount Variant::ToAmount() const {
  if (Is<Amount>()) return As<Amount>();
  if (Is<std::int64_t>()) return Amount::OfInteger(As<std::int64_t>());
  if (Is<std::string>()) return Amount::OfText(As<std::string>());
  return Amount::OfDouble(ToDouble());
}

bool Variant::ToFlag() const {
  if (Is<std::string>()) {
    const std::string lower = text::Lower(As<std::string>());
    if (lower == "true") return true;
    if (lower == "false") return false;
  }
  return ToDouble() != 0;
}

Date Variant::ToDate() const {
  if (IsEmpty() || IsNull()) return {};
  if (Is<Date>()) return As<Date>();
  if (Is<std::string>()) return Date::Parse(As<std::string>());
  Mismatch();
}

std::string Variant::ToText() const {
  if (IsEmpty() || IsNull()) return {};
  if (Is<bool>()) return As<bool>() ? "True" : "False";
  if (Is<std::int64_t>()) return std::to_string(As<std::int64_t>());
  if (Is<double>()) return NumberText(As<double>());
  if (Is<Amount>()) return As<Amount>().ToString();
  if (Is<Date>()) return As<Date>().Text();
  if (Is<std::string>()) return As<std::string>();
  Mismatch();
}

std::shared_ptr<Object> Variant::ToObject() const {
  return Is<std::shared_ptr<Object>>() ? As<std::shared_ptr<Object>>() : nullptr;
}

const Array& Variant::ToArray() const {
  if (!Is<std::shared_ptr<Array>>()) Mismatch();
  return *As<std::shared_ptr<Array>>();
}

Variant Object::Get(const std::string& member) { throw HostError("There is no member " + member); }

void Object::Set(const std::string& member, const Variant&) {
  throw HostError("There is no member " + member);
}

Variant Object::Call(const std::string& method, const Array&) {
  throw HostError("There is no method " + method);
}

}  // namespace quillon
