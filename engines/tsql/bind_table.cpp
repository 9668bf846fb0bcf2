#include <algorithm>
#include <array>

#include "engines/tsql/binder.h"
#include "engines/tsql/text_values.h"
#include "runtime/ado/text_order.h"

namespace korvantes::tsql {

namespace {

constexpr int kLongestText = 8000;  // beyond it a length is max

struct NamedType {
  std::string_view name;
  TypeKind kind;
};

constexpr std::array kTypes{
    NamedType{"int", TypeKind::Int},
    NamedType{"integer", TypeKind::Int},
    NamedType{"bit", TypeKind::Bit},
    NamedType{"money", TypeKind::Money},
    NamedType{"decimal", TypeKind::Decimal},
    NamedType{"dec", TypeKind::Decimal},
    NamedType{"numeric", TypeKind::Decimal},
    NamedType{"date", TypeKind::Date},
    NamedType{"varchar", TypeKind::VarChar},
    NamedType{"nvarchar", TypeKind::VarChar},
    NamedType{"char", TypeKind::Char},
    NamedType{"nchar", TypeKind::Char},
    NamedType{"varbinary", TypeKind::VarBinary},
};

int sizeOf(const syntax::TypeName& type, std::size_t index, int least, int most) {
  const auto& raw = type.sizes[index].literal.raw;
  int value = 0;
  for (const char c : raw) {
    value = value * 10 + (c - '0');
    if (value > most) break;
  }
  if (value < least || value > most) refuse(Problem::BadSize, type.name.where, raw);
  return value;
}

void requireSizes(const syntax::TypeName& type, std::size_t most, bool maxAllowed) {
  if (type.sizes.size() > most) {
    refuse(Problem::BadSize, type.name.where, type.sizes[most].literal.raw);
  }
  if (type.max && !maxAllowed) refuse(Problem::BadSize, type.name.where, "max");
}

Type decimalOf(const syntax::TypeName& name) {
  requireSizes(name, 2, false);
  const int precision = name.sizes.empty() ? kMaxDigits : sizeOf(name, 0, 1, kMaxDigits);
  return decimalType(precision, name.sizes.size() < 2 ? 0 : sizeOf(name, 1, 0, precision));
}

Type sizedOf(const syntax::TypeName& name, TypeKind kind, int length) {
  requireSizes(name, 1, kind != TypeKind::Char);
  if (name.max) return {.kind = kind};
  return {.kind = kind, .length = name.sizes.empty() ? length : sizeOf(name, 0, 1, kLongestText)};
}

std::vector<std::string> keyColumns(const TableDefinition& table,
                                    const std::vector<syntax::Name>& names) {
  std::vector<std::string> columns;
  for (const auto& name : names) {
    const auto position = table.find(name.text);
    if (!position) refuse(Problem::NoColumn, name.where, name.text);
    columns.push_back(table.columns[*position].name);
    if (std::count(columns.begin(), columns.end(), columns.back()) > 1) {
      refuse(Problem::DuplicateColumn, name.where, name.text);
    }
  }
  return columns;
}

void addColumn(TableDefinition& table, const syntax::ColumnDeclaration& declaration) {
  if (table.find(declaration.name.text)) {
    refuse(Problem::DuplicateColumn, declaration.name.where, declaration.name.text);
  }
  const Type type = typeOf(declaration.type, 1);
  if (declaration.identity && type.kind != TypeKind::Int) {
    refuse(Problem::NotSupported, declaration.name.where, "IDENTITY");
  }
  const bool nullable = declaration.nullable.value_or(!declaration.identity);
  table.columns.push_back({declaration.name.text, type, nullable, declaration.identity});
}

/// A column numbered by the database must be the whole key: this keeps the numbers unique.
void requireIdentityIsKey(const TableDefinition& table, const syntax::CreateTable& create) {
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    const auto& column = table.columns[i];
    const bool key = table.primaryKey.size() == 1 && table.primaryKey.front() == column.name;
    if (column.identity && !key) {
      refuse(Problem::NotSupported, create.columns[i].name.where, "IDENTITY sin PRIMARY KEY");
    }
  }
}

}  // namespace

Type typeOf(const syntax::TypeName& name, int textLength) {
  for (const auto& type : kTypes) {
    if (!ado::sameName(type.name, name.name.text)) continue;
    switch (type.kind) {
      case TypeKind::Decimal:
        return decimalOf(name);
      case TypeKind::VarChar:
      case TypeKind::Char:
      case TypeKind::VarBinary:
        return sizedOf(name, type.kind, textLength);
      default:
        requireSizes(name, 0, false);
        return type.kind == TypeKind::Money ? moneyType() : Type{.kind = type.kind};
    }
  }
  refuse(Problem::NoType, name.name.where, name.name.text);
}

typed::CreateTable Binder::bind(const syntax::CreateTable& create) {
  const auto& name = create.table;
  typed::CreateTable result;
  auto& table = result.table;
  if (!name.database.empty()) {
    if (!ado::sameName(name.database.text, kSharedDatabase)) {
      refuse(Problem::NoDatabase, name.database.where, name.database.text);
    }
    table.database = kSharedDatabase;
  }
  table.name = name.table.text;
  if (catalogue_.find(table.database, table.name) != nullptr) {
    refuse(Problem::TableExists, name.table.where, table.name);
  }
  for (const auto& declaration : create.columns) addColumn(table, declaration);
  for (const auto& key : create.keys) {
    auto columns = keyColumns(table, key.columns);
    if (!key.primary) {
      result.uniqueKeys.push_back(std::move(columns));
      continue;
    }
    if (!table.primaryKey.empty()) refuse(Problem::SecondKey, key.where, "PRIMARY KEY");
    table.primaryKey = std::move(columns);
    for (const auto& column : table.primaryKey) {
      const auto position = *table.find(column);
      if (create.columns[position].nullable.value_or(false)) {
        refuse(Problem::NotSupported, key.where, "PRIMARY KEY con Null");
      }
      table.columns[position].nullable = false;
    }
  }
  requireIdentityIsKey(table, create);
  return result;
}

typed::CreateIndex Binder::bind(const syntax::CreateIndex& create) {
  const auto& table = tableOf(create.table);
  typed::CreateIndex result{create.unique, create.name.text, table.database, table.name, {}};
  std::vector<syntax::Name> names;
  for (const auto& [name, descending] : create.columns) names.push_back(name);
  const auto columns = keyColumns(table, names);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    result.columns.emplace_back(columns[i], create.columns[i].second);
  }
  return result;
}

typed::DropTable Binder::bind(const syntax::DropTable& drop) {
  const auto& table = tableOf(drop.table);
  return {table.database, table.name};
}

}  // namespace korvantes::tsql
