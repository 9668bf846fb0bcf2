#include "engines/tsql/compiler.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_map>

#include "engines/tsql/binder.h"
#include "engines/tsql/fingerprint.h"
#include "engines/tsql/parser.h"
#include "engines/tsql/sqlite_writer.h"

namespace korvantes::tsql {

namespace {

/// SQLite's limit of parameters.
constexpr std::size_t kMostParameters = 32000;
/// Entries under one key differ in their structural literals; texts in which these keep changing (a
/// script of INSERTs with expressions) must not pile up.
constexpr std::size_t kMostPerKey = 64;
constexpr std::size_t kMostKeys = 2000;
constexpr std::size_t kLongestKey = 65536;

ado::FieldType fieldTypeOf(const Type& type) {
  switch (type.kind) {
    case TypeKind::Bit:
      return ado::FieldType::Boolean;
    case TypeKind::Money:
      return ado::FieldType::Currency;
    case TypeKind::Decimal:
      return ado::FieldType::Numeric;
    case TypeKind::Date:
      return ado::FieldType::Date;
    case TypeKind::VarChar:
    case TypeKind::Char:
      return ado::FieldType::VarChar;
    case TypeKind::VarBinary:
      return ado::FieldType::LongVarBinary;
    default:
      return ado::FieldType::Integer;
  }
}

/// Fills in what the engine needs besides the text.
struct Describer {
  CompiledStatement& out;

  void operator()(const typed::Select& select) const {
    out.kind = StatementKind::Select;
    std::vector<ado::FieldDefinition> fields;
    for (const auto& item : select.cores.front().items) {
      const Type& type = item.value->type;
      fields.push_back({item.name, fieldTypeOf(type), type.length, type.scale});
      out.types.push_back(type);
    }
    out.fields = std::make_shared<const std::vector<ado::FieldDefinition>>(std::move(fields));
    const auto& sources = select.cores.front().sources;
    if (select.cores.size() == 1 && sources.size() == 1) {
      name(sources.front().database, sources.front().table);
    }
  }
  void operator()(const typed::Insert& insert) const {
    out.kind = StatementKind::Insert;
    name(insert.database, insert.table);
  }
  void operator()(const typed::Update& update) const {
    out.kind = StatementKind::Update;
    name(update.target.database, update.target.table);
  }
  void operator()(const typed::Delete& statement) const {
    out.kind = StatementKind::Delete;
    name(statement.target.database, statement.target.table);
  }
  void operator()(const typed::CreateTable& create) const {
    out.kind = StatementKind::CreateTable;
    out.created = create.table;
    name(create.table.database, create.table.name);
  }
  void operator()(const typed::CreateIndex& create) const {
    out.kind = StatementKind::CreateIndex;
    name(create.database, create.table);
  }
  void operator()(const typed::DropTable& drop) const {
    out.kind = StatementKind::DropTable;
    out.droppedDatabase = drop.database;
    out.droppedTable = drop.table;
    name(drop.database, drop.table);
  }

 private:
  void name(const std::string& database, const std::string& table) const {
    out.database = database;
    out.table = table;
  }
};

/// One compiled statement and what a text must have to be the same statement.
struct Entry {
  std::shared_ptr<const CompiledStatement> statement;
  std::vector<ParameterUse> parameters;
  std::vector<std::pair<std::size_t, std::string>> structural;  ///< literals and their texts

  bool matches(const std::vector<Literal>& literals) const {
    return std::all_of(structural.begin(), structural.end(), [&](const auto& fixed) {
      return literals[fixed.first].raw == fixed.second;
    });
  }

  /// The text's literals as parameters; false if one has more digits than this statement can take.
  bool fill(const std::vector<Literal>& literals, std::string_view text,
            std::vector<StoredValue>& values) const {
    values.clear();
    values.reserve(parameters.size());
    for (const auto& use : parameters) {
      auto value = convert(literals[use.literal], use, text);
      if (!value) return false;
      values.push_back(std::move(*value));
    }
    return true;
  }
};

std::vector<std::pair<std::size_t, std::string>> structuralOf(
    const std::vector<Literal>& literals, const std::vector<ParameterUse>& parameters) {
  std::vector<bool> lifted(literals.size());
  for (const auto& use : parameters) lifted[use.literal] = true;
  std::vector<std::pair<std::size_t, std::string>> structural;
  for (std::size_t i = 0; i < literals.size(); ++i) {
    if (!lifted[i]) structural.emplace_back(i, literals[i].raw);
  }
  return structural;
}

}  // namespace

struct Compiler::Impl {
  std::shared_ptr<Catalogue> catalogue;
  std::unordered_map<std::string, std::vector<Entry>> cache;
  Fingerprint fingerprint;

  Entry compile(std::string_view text) const {
    const auto syntax = parse(text);
    Binder binder(*catalogue, text);
    auto bound = binder.bind(syntax);
    if (bound.parameters.size() > kMostParameters) refuse(Problem::TooManyLiterals, {});
    auto statement = std::make_shared<CompiledStatement>();
    std::visit(Describer{*statement}, bound.node);
    statement->text = writeSqlite(bound);
    return {std::move(statement), std::move(bound.parameters), {}};
  }

  void remember(const Entry& entry) {
    if (fingerprint.key.size() > kLongestKey) return;
    if (cache.size() >= kMostKeys) cache.clear();
    auto& entries = cache[fingerprint.key];
    if (entries.size() >= kMostPerKey) entries.clear();
    entries.push_back(entry);
  }

  BoundStatement find(std::string_view text) {
    BoundStatement result;
    const bool readable = fingerprint.read(text);
    if (readable) {
      const auto found = cache.find(fingerprint.key);
      if (found != cache.end()) {
        for (const auto& entry : found->second) {
          if (!entry.matches(fingerprint.literals)) continue;
          if (!entry.fill(fingerprint.literals, text, result.parameters)) continue;
          result.statement = entry.statement;
          return result;
        }
      }
    }
    Entry entry = compile(text);
    // SQLite silently takes a missing parameter as Null.
    if (!entry.fill(fingerprint.literals, text, result.parameters))
      throw std::logic_error("a statement has no room for its own literals");
    entry.structural = structuralOf(fingerprint.literals, entry.parameters);
    result.statement = entry.statement;
    const bool keeps = entry.statement->kind != StatementKind::CreateTable &&
                       entry.statement->kind != StatementKind::CreateIndex &&
                       entry.statement->kind != StatementKind::DropTable;
    if (keeps) remember(entry);
    return result;
  }
};

Compiler::Compiler(std::shared_ptr<Catalogue> catalogue) : impl_(std::make_unique<Impl>()) {
  impl_->catalogue = std::move(catalogue);
}

Compiler::~Compiler() = default;

BoundStatement Compiler::compile(std::string_view text) {
  try {
    return impl_->find(text);
  } catch (const Refusal& refusal) {
    throw describe(refusal, text);
  }
}

void Compiler::clear() {
  impl_->cache.clear();
}

}  // namespace korvantes::tsql
