#include "engines/tsql/sqlite_writer.h"

#include <array>

#include "engines/tsql/quoted_names.h"

namespace korvantes::tsql {

namespace {

/// The operations that map to one function call: its name, and how many of the operation's numbers
/// follow the operands. The functions are in functions.h; trim, length and coalesce are SQLite's
/// own.
struct FunctionOf {
  typed::Operation operation;
  const char* name;
  std::size_t numbers;
};

constexpr std::array kFunctions{
    FunctionOf{typed::Operation::Add, "kv_add", 0},
    FunctionOf{typed::Operation::Subtract, "kv_sub", 0},
    FunctionOf{typed::Operation::SubtractRound, "kv_sub_round", 2},
    FunctionOf{typed::Operation::Multiply, "kv_mul", 0},
    FunctionOf{typed::Operation::MultiplyRound, "kv_mul_round", 3},
    FunctionOf{typed::Operation::Divide, "kv_div", 1},
    FunctionOf{typed::Operation::Modulo, "kv_mod", 0},
    FunctionOf{typed::Operation::Absolute, "kv_abs", 0},
    FunctionOf{typed::Operation::Rescale, "kv_rescale", 2},
    FunctionOf{typed::Operation::RescaleRound, "kv_rescale_round", 3},
    FunctionOf{typed::Operation::Round, "kv_round", 2},
    FunctionOf{typed::Operation::CheckInt, "kv_int", 0},
    FunctionOf{typed::Operation::CheckDigits, "kv_digits", 1},
    FunctionOf{typed::Operation::Upper, "kv_upper", 0},
    FunctionOf{typed::Operation::Lower, "kv_lower", 0},
    FunctionOf{typed::Operation::TrimLeft, "ltrim", 0},
    FunctionOf{typed::Operation::TrimRight, "rtrim", 0},
    FunctionOf{typed::Operation::TextToDate, "kv_text_date", 0},
    FunctionOf{typed::Operation::DateToDayFirst, "kv_date_text", 0},
    FunctionOf{typed::Operation::Coalesce, "coalesce", 0},
};

const char* symbolOf(typed::Comparison op) {
  switch (op) {
    case typed::Comparison::Equal:
      return " = ";
    case typed::Comparison::NotEqual:
      return " <> ";
    case typed::Comparison::Less:
      return " < ";
    case typed::Comparison::LessEqual:
      return " <= ";
    case typed::Comparison::Greater:
      return " > ";
    case typed::Comparison::GreaterEqual:
      return " >= ";
  }
  return " ";
}

const char* nameOf(typed::AggregateKind kind) {
  switch (kind) {
    case typed::AggregateKind::Sum:
      return "sum(";
    case typed::AggregateKind::Min:
      return "min(";
    case typed::AggregateKind::Max:
      return "max(";
    default:
      return "count(";
  }
}

/// A column has the collation by its declaration; any other text needs it added.
bool isColumn(const typed::Expression& expression) {
  return std::holds_alternative<typed::Column>(expression.node);
}

bool needsCollation(const typed::Expression& expression) {
  return isText(expression.type) && !isColumn(expression);
}

std::string hexOf(const ado::Bytes& bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string hex = "X'";
  for (const auto byte : bytes) {
    hex += kDigits[std::to_integer<std::size_t>(byte) >> 4U];
    hex += kDigits[std::to_integer<std::size_t>(byte) & 0xFU];
  }
  return hex + "'";
}

/// Length and padding of a text type, as the functions take them.
std::string textShape(const Type& type) {
  return ", " + std::to_string(type.length) + (type.kind == TypeKind::Char ? ", 1" : ", 0");
}

/// Kind, precision and scale of a number type, as the functions take them.
std::string numberShape(const Type& type) {
  return ", " + std::to_string(static_cast<int>(type.kind)) + ", " +
         std::to_string(type.precision) + ", " + std::to_string(type.scale);
}

class Writer {
 public:
  std::string take() { return std::move(out_); }

  void write(const typed::Select& select, const char* alias = "") {
    for (std::size_t i = 0; i < select.cores.size(); ++i) {
      if (i > 0) out_ += select.unionAll[i - 1] ? " UNION ALL " : " UNION ";
      write(select.cores[i], select.cores.size() > 1, alias);
    }
    writeOrder(select);
    // TOP comes first, LIMIT last.
    if (const auto& top = select.cores.front().top) out_ += " LIMIT " + std::to_string(*top);
  }

  void write(const typed::Insert& insert) {
    out_ += "INSERT INTO " + qualifiedName(insert.database, insert.table) + " (";
    writeList(insert.columns, [&](const std::string& name) { out_ += quotedName(name); });
    out_ += ")";
    if (insert.select) {
      out_ += " ";
      write(*insert.select);
      return;
    }
    out_ += " VALUES ";
    writeList(insert.rows, [&](const auto& row) {
      out_ += "(";
      writeList(row, [&](const auto& value) { write(*value); });
      out_ += ")";
    });
  }

  void write(const typed::Update& update) {
    out_ += "UPDATE ";
    writeSource(update.target);
    out_ += " SET ";
    writeList(update.changes, [&](const auto& change) {
      out_ += quotedName(change.first) + " = ";
      write(*change.second);
    });
    writeFilter(" WHERE ", update.filter);
  }

  void write(const typed::Delete& statement) {
    out_ += "DELETE FROM ";
    writeSource(statement.target);
    writeFilter(" WHERE ", statement.filter);
  }

  void write(const typed::CreateTable& create) { out_ += writeSqlite(create); }
  void write(const typed::CreateIndex& create) { out_ += writeSqlite(create); }
  void write(const typed::DropTable& drop) { out_ += writeSqlite(drop); }

 private:
  template <typename List, typename Write>
  void writeList(const List& list, Write writeOne) {
    bool first = true;
    for (const auto& element : list) {
      if (!first) out_ += ", ";
      first = false;
      writeOne(element);
    }
  }

  void write(const typed::Core& core, bool compound, const char* alias) {
    out_ += core.distinct ? "SELECT DISTINCT " : "SELECT ";
    writeList(core.items, [&](const typed::Item& item) {
      write(*item.value);
      // Rows must be equal by the same comparison as everywhere else.
      if ((core.distinct || compound) && needsCollation(*item.value)) out_ += kCollation;
      out_ += alias;
    });
    if (!core.sources.empty()) {
      out_ += " FROM ";
      writeSources(core.sources);
    }
    writeFilter(" WHERE ", core.filter);
    if (!core.groupBy.empty()) {
      out_ += " GROUP BY ";
      writeList(core.groupBy, [&](const auto& column) { write(*column); });
    }
    writeFilter(" HAVING ", core.having);
  }

  void writeSources(const std::vector<typed::Source>& sources) {
    bool first = true;
    for (const auto& source : sources) {
      const bool left = source.join == typed::Join::Left;
      if (!first)
        out_ += source.join == typed::Join::Comma ? ", " : left ? " LEFT JOIN " : " JOIN ";
      first = false;
      writeSource(source);
      writeFilter(" ON ", source.on);
    }
  }

  void writeSource(const typed::Source& source) {
    out_ += qualifiedName(source.database, source.table) + " AS t" + std::to_string(source.number);
  }

  void writeFilter(const char* word, const typed::ExpressionPtr& condition) {
    if (!condition) return;
    out_ += word;
    write(*condition);
  }

  void writeOrder(const typed::Select& select) {
    if (select.order.empty()) return;
    out_ += " ORDER BY ";
    writeList(select.order, [&](const typed::Order& order) {
      if (order.position > 0) {
        out_ += std::to_string(order.position);
      } else {
        write(*order.value);
      }
      const bool column = order.value && isColumn(*order.value);
      if (isText(order.type) && !column) out_ += kCollation;
      if (order.descending) out_ += " DESC";
    });
  }

  void write(const typed::Expression& expression) {
    std::visit([&](const auto& node) { write(node, expression); }, expression.node);
  }

  void write(const typed::Column& column, const typed::Expression&) {
    out_ += "t" + std::to_string(column.source) + "." + quotedName(column.name);
  }

  void write(const typed::Constant& constant, const typed::Expression&) {
    struct Visitor {
      std::string operator()(std::monostate) const { return "NULL"; }
      std::string operator()(std::int64_t units) const { return std::to_string(units); }
      std::string operator()(const std::string& text) const { return quotedText(text); }
      std::string operator()(const ado::Bytes& bytes) const { return hexOf(bytes); }
    };
    out_ += std::visit(Visitor{}, constant.value);
  }

  void write(const typed::Parameter& parameter, const typed::Expression&) {
    out_ += "?" + std::to_string(parameter.number);
  }

  void write(const typed::Operate& node, const typed::Expression& expression) {
    const auto& first = *node.operands.front();
    const auto call = [&](const char* name, const std::string& rest) {
      out_ += name;
      out_ += "(";
      writeList(node.operands, [&](const auto& operand) { write(*operand); });
      out_ += rest + ")";
    };
    switch (node.operation) {
      case typed::Operation::ToBit:
        out_ += "(";
        write(first);
        out_ += " <> 0)";
        return;
      case typed::Operation::Concatenate:
        out_ += "(";
        write(first);
        out_ += " || ";
        write(*node.operands.back());
        out_ += ")";
        return;
      case typed::Operation::Length:
        out_ += "length(rtrim(";
        write(first);
        out_ += "))";
        return;
      case typed::Operation::DateToText:
        write(first);
        return;
      case typed::Operation::NumberToText:
        return call("kv_number_text", numberShape(first.type) + textShape(expression.type));
      case typed::Operation::TextToNumber:
        return call("kv_text_number", numberShape(expression.type));
      case typed::Operation::FixText:
        return call("kv_fix_text", textShape(expression.type));
      case typed::Operation::StoreText:
        return call("kv_store_text", textShape(expression.type) + ", " + quotedText(node.column));
      case typed::Operation::RefuseNull:
        return call("coalesce", ", kv_refuse_null(" + quotedText(node.column) + ")");
      default:
        break;
    }
    for (const auto& function : kFunctions) {
      if (function.operation != node.operation) continue;
      std::string numbers;
      for (std::size_t i = 0; i < function.numbers; ++i) {
        numbers += ", " + std::to_string(node.numbers[i]);
      }
      return call(function.name, numbers);
    }
  }

  void write(const typed::Aggregate& aggregate, const typed::Expression&) {
    out_ += nameOf(aggregate.kind);
    if (aggregate.distinct) out_ += "DISTINCT ";
    if (aggregate.operand) {
      writeCollated(*aggregate.operand);
    } else {
      out_ += "*";
    }
    out_ += ")";
  }

  void write(const typed::Case& node, const typed::Expression&) {
    out_ += "CASE";
    for (const auto& [condition, result] : node.branches) {
      out_ += " WHEN ";
      write(*condition);
      out_ += " THEN ";
      write(*result);
    }
    if (node.otherwise) {
      out_ += " ELSE ";
      write(*node.otherwise);
    }
    out_ += " END";
  }

  void write(const typed::Subquery& subquery, const typed::Expression&) {
    const auto& cores = subquery.select->cores;
    if (cores.size() == 1 && cores.front().oneRow) {
      writeParenthesised(*subquery.select);
      return;
    }
    // SQLite would silently take the first of several rows.
    out_ += "(SELECT CASE WHEN count(*) > 1 THEN kv_refuse_rows(1) ELSE min(x) END FROM ";
    writeParenthesised(*subquery.select, " AS x");
    out_ += ")";
  }

  void write(const typed::Compare& compare, const typed::Expression&) {
    out_ += "(";
    // SQLite uses the left side's collation; it is needed only if neither side is a column.
    const bool column = isColumn(*compare.left) || isColumn(*compare.right);
    write(*compare.left);
    if (!column && isText(compare.left->type)) out_ += kCollation;
    out_ += symbolOf(compare.op);
    write(*compare.right);
    out_ += ")";
  }

  void write(const typed::Logical& logical, const typed::Expression&) {
    out_ += "(";
    write(*logical.left);
    out_ += logical.conjunction ? " AND " : " OR ";
    write(*logical.right);
    out_ += ")";
  }

  void write(const typed::Not& node, const typed::Expression&) {
    out_ += "(NOT ";
    write(*node.operand);
    out_ += ")";
  }

  void write(const typed::InList& in, const typed::Expression&) {
    out_ += "(";
    writeCollated(*in.subject);
    out_ += " IN (";
    writeList(in.items, [&](const auto& item) { write(*item); });
    out_ += "))";
  }

  void write(const typed::InSelect& in, const typed::Expression&) {
    out_ += "(";
    writeCollated(*in.subject);
    out_ += " IN ";
    writeParenthesised(*in.select);
    out_ += ")";
  }

  void write(const typed::Exists& exists, const typed::Expression&) {
    out_ += "EXISTS ";
    writeParenthesised(*exists.select);
  }

  void write(const typed::Between& between, const typed::Expression&) {
    out_ += "(";
    writeCollated(*between.subject);
    out_ += " BETWEEN ";
    write(*between.low);
    out_ += " AND ";
    write(*between.high);
    out_ += ")";
  }

  void write(const typed::Like& like, const typed::Expression&) {
    out_ += "kv_like(";
    write(*like.subject);
    out_ += ", ";
    write(*like.pattern);
    out_ += ")";
  }

  void write(const typed::IsNull& isNull, const typed::Expression&) {
    out_ += "(";
    write(*isNull.subject);
    out_ += " IS NULL)";
  }

  void writeCollated(const typed::Expression& expression) {
    write(expression);
    if (needsCollation(expression)) out_ += kCollation;
  }

  /// `alias` names the select's only column.
  void writeParenthesised(const typed::Select& select, const char* alias = "") {
    out_ += "(";
    write(select, alias);
    out_ += ")";
  }

  static constexpr const char* kCollation = " COLLATE KV_TEXT";
  std::string out_;
};

}  // namespace

std::string writeSqlite(const typed::Statement& statement) {
  Writer writer;
  std::visit([&](const auto& node) { writer.write(node); }, statement.node);
  return writer.take();
}

}  // namespace korvantes::tsql
