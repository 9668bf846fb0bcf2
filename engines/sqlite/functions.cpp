#include "engines/sqlite/functions.h"

#include <array>
#include <exception>
#include <memory>
#include <sqlite3.h>
#include <string_view>

#include "engines/sqlite/database.h"
#include "engines/tsql/functions.h"
#include "runtime/ado/text_order.h"

namespace korvantes::sqlite {

namespace {

constexpr std::size_t kMostArguments = 16;

/// User data of a call: the function, and where to report failures.
template <typename Function>
struct Registration {
  const Function* function;
  Database* database;
};

std::size_t length(sqlite3_value* value) {
  return static_cast<std::size_t>(sqlite3_value_bytes(value));
}

tsql::StoredValue storedValue(sqlite3_value* value) {
  switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
      return std::int64_t{sqlite3_value_int64(value)};
    case SQLITE_BLOB: {
      const auto* bytes = static_cast<const std::byte*>(sqlite3_value_blob(value));
      return ado::Bytes(bytes, bytes + length(value));
    }
    default: {
      const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
      return std::string(text, length(value));
    }
  }
}

void giveBack(sqlite3_context* context, const tsql::StoredValue& value) {
  if (const auto* number = std::get_if<std::int64_t>(&value)) {
    sqlite3_result_int64(context, *number);
  } else if (const auto* text = std::get_if<std::string>(&value)) {
    sqlite3_result_text64(context, text->data(), text->size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  } else if (const auto* bytes = std::get_if<ado::Bytes>(&value)) {
    sqlite3_result_blob64(context, bytes->data(), bytes->size(), SQLITE_TRANSIENT);
  } else {
    sqlite3_result_null(context);
  }
}

int argumentsOf(const tsql::NumberFunction& function) {
  return function.operands + function.numbers;
}
int argumentsOf(const tsql::ValueFunction& function) {
  return function.arguments;
}

/// Arguments that may be Null, the first ones.
int nullableOf(const tsql::NumberFunction& function) {
  return function.operands;
}
int nullableOf(const tsql::ValueFunction& function) {
  return function.arguments;
}

std::int64_t callWith(const tsql::NumberFunction& function, sqlite3_value** arguments) {
  std::array<std::int64_t, kMostArguments> numbers;
  for (int i = 0; i < argumentsOf(function); ++i) {
    numbers[static_cast<std::size_t>(i)] = sqlite3_value_int64(arguments[i]);
  }
  return function.call(numbers.data());
}

tsql::StoredValue callWith(const tsql::ValueFunction& function, sqlite3_value** arguments) {
  std::array<tsql::StoredValue, kMostArguments> values;
  const auto count = static_cast<std::size_t>(argumentsOf(function));
  for (std::size_t i = 0; i < count; ++i) values[i] = storedValue(arguments[i]);
  return function.call({values.data(), count});
}

void giveBack(sqlite3_context* context, std::int64_t number) {
  sqlite3_result_int64(context, number);
}

/// Must not throw: the caller is C.
template <typename Function>
void call(sqlite3_context* context, int, sqlite3_value** arguments) {
  const auto* registration = static_cast<const Registration<Function>*>(sqlite3_user_data(context));
  for (int i = 0; i < nullableOf(*registration->function); ++i) {
    if (sqlite3_value_type(arguments[i]) == SQLITE_NULL) return;  // the result is Null already
  }
  try {
    giveBack(context, callWith(*registration->function, arguments));
  } catch (const ado::Error& error) {
    registration->database->keepFunctionFailure(error);
    sqlite3_result_error(context, error.what(), -1);
  } catch (const std::exception& error) {
    sqlite3_result_error(context, error.what(), -1);
  }
}

template <typename Function>
void registerOne(Database& database, const Function& function) {
  // SQLite deletes the registration with the function, even if that could not be registered.
  auto registration = std::make_unique<Registration<Function>>(&function, &database);
  const int code = sqlite3_create_function_v2(
      database.raw(), function.name, argumentsOf(function), SQLITE_UTF8 | SQLITE_DETERMINISTIC,
      registration.release(), &call<Function>, nullptr, nullptr, [](void* pointer) {
        const std::unique_ptr<Registration<Function>> owned(
            static_cast<Registration<Function>*>(pointer));
      });
  if (code != SQLITE_OK) throw database.failure(code, {});
}

int compare(void*, int aSize, const void* a, int bSize, const void* b) {
  return ado::compareTexts({static_cast<const char*>(a), static_cast<std::size_t>(aSize)},
                           {static_cast<const char*>(b), static_cast<std::size_t>(bSize)});
}

}  // namespace

void registerFunctions(Database& database) {
  for (const auto& function : tsql::numberFunctions()) registerOne(database, function);
  for (const auto& function : tsql::valueFunctions()) registerOne(database, function);
  const int code =
      sqlite3_create_collation(database.raw(), "KV_TEXT", SQLITE_UTF8, nullptr, &compare);
  if (code != SQLITE_OK) throw database.failure(code, {});
}

}  // namespace korvantes::sqlite
