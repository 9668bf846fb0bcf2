#include <algorithm>

#include "engines/tsql/binder.h"
#include "engines/tsql/text_values.h"
#include "runtime/ado/text_order.h"

namespace korvantes::tsql {

using typed::ExpressionPtr;

namespace {

typed::Join joinOf(syntax::Join join) {
  switch (join) {
    case syntax::Join::Inner:
      return typed::Join::Inner;
    case syntax::Join::Left:
      return typed::Join::Left;
    default:
      return typed::Join::Comma;
  }
}

const syntax::ColumnName* columnNameOf(const syntax::Expression& expression) {
  return std::get_if<syntax::ColumnName>(&expression.node);
}

const typed::Column* columnOf(const typed::Expression& expression) {
  return std::get_if<typed::Column>(&expression.node);
}

bool anyAggregate(const std::vector<syntax::ExpressionPtr>& expressions) {
  return std::any_of(expressions.begin(), expressions.end(),
                     [](const auto& expression) { return hasAggregate(*expression); });
}

bool isGrouped(const syntax::Core& core) {
  if (!core.groupBy.empty() || core.having) return true;
  return std::any_of(core.items.begin(), core.items.end(), [](const syntax::SelectItem& item) {
    return item.expression && hasAggregate(*item.expression);
  });
}

/// The result column that an ORDER BY name denotes, from 1: an alias, and in a UNION any name.
std::optional<std::size_t> namedItem(const syntax::Name& name, const syntax::Core& core,
                                     const typed::Core& bound, bool anyName) {
  std::optional<std::size_t> found;
  const auto meet = [&](std::size_t position) {
    if (found) refuse(Problem::Ambiguous, name.where, name.text);
    found = position;
  };
  if (anyName) {
    for (std::size_t i = 0; i < bound.items.size(); ++i) {
      if (ado::sameName(bound.items[i].name, name.text)) meet(i + 1);
    }
    return found;
  }
  std::size_t position = 0;
  for (const auto& item : core.items) {
    // Stars have no alias; after one, positions no longer follow the list.
    if (!item.expression) return found;
    ++position;
    if (!item.alias.empty() && ado::sameName(item.alias.text, name.text)) meet(position);
  }
  return found;
}

/// Brings the columns of all SELECTs of a UNION to one type each.
void unify(typed::Select& select, const syntax::Select& syntax) {
  const auto& first = select.cores.front().items;
  for (std::size_t c = 1; c < select.cores.size(); ++c) {
    const auto where = syntax.cores[c].where;
    if (select.cores[c].items.size() != first.size()) {
      refuse(Problem::UnionCount, where, {},
             std::to_string(first.size()) + " y " + std::to_string(select.cores[c].items.size()));
    }
    for (std::size_t i = 0; i < first.size(); ++i) {
      const Type a = first[i].value->type;
      const Type b = select.cores[c].items[i].value->type;
      const auto common = commonType(a, b);
      if (!common) {
        refuse(Problem::TypesDiffer, where, "UNION", nameOf(a) + " y " + nameOf(b));
      }
      for (std::size_t earlier = 0; earlier <= c; ++earlier) {
        auto& value = select.cores[earlier].items[i].value;
        value = converted(std::move(value), *common, {where, "UNION"});
      }
    }
  }
}

}  // namespace

bool hasAggregate(const syntax::Expression& expression) {
  struct Visitor {
    bool operator()(const syntax::Unary& n) const { return hasAggregate(*n.operand); }
    bool operator()(const syntax::Binary& n) const {
      return hasAggregate(*n.left) || hasAggregate(*n.right);
    }
    bool operator()(const syntax::Call& n) const {
      return isAggregate(n) || anyAggregate(n.arguments);
    }
    bool operator()(const syntax::Cast& n) const { return hasAggregate(*n.operand); }
    bool operator()(const syntax::Case& n) const {
      for (const auto& [when, then] : n.branches) {
        if (hasAggregate(*when) || hasAggregate(*then)) return true;
      }
      return (n.subject && hasAggregate(*n.subject)) || (n.otherwise && hasAggregate(*n.otherwise));
    }
    bool operator()(const syntax::InList& n) const {
      return hasAggregate(*n.subject) || anyAggregate(n.items);
    }
    bool operator()(const syntax::InSelect& n) const { return hasAggregate(*n.subject); }
    bool operator()(const syntax::Between& n) const {
      return hasAggregate(*n.subject) || hasAggregate(*n.low) || hasAggregate(*n.high);
    }
    bool operator()(const syntax::Like& n) const {
      return hasAggregate(*n.subject) || hasAggregate(*n.pattern);
    }
    bool operator()(const syntax::IsNull& n) const { return hasAggregate(*n.subject); }
    bool operator()(const syntax::ColumnName&) const { return false; }
    bool operator()(const syntax::LiteralValue&) const { return false; }
    bool operator()(const syntax::NullValue&) const { return false; }
    bool operator()(const syntax::Star&) const { return false; }
    bool operator()(const syntax::Subquery&) const { return false; }
    bool operator()(const syntax::Exists&) const { return false; }
  };
  return std::visit(Visitor{}, expression.node);
}

typed::Select Binder::bind(const syntax::Select& select) {
  return bindSelect(select, nullptr);
}

typed::Select Binder::bindSelect(const syntax::Select& select, Scope* outer) {
  Scope* const before = scope_;
  typed::Select result;
  result.unionAll = select.unionAll;
  const bool single = select.cores.size() == 1;
  for (const auto& core : select.cores) {
    if (core.top && !single) refuse(Problem::NotSupported, core.where, "TOP con UNION");
    Scope scope;
    scope.outer = outer;
    scope_ = &scope;
    result.cores.push_back(bindCore(core));
    if (!single) continue;
    for (const auto& item : select.order) {
      result.order.push_back(bindOrder(item, select, result));
    }
  }
  scope_ = before;
  if (single) return result;
  unify(result, select);
  for (const auto& item : select.order) result.order.push_back(bindOrder(item, select, result));
  return result;
}

typed::Core Binder::bindCore(const syntax::Core& core) {
  typed::Core result;
  result.distinct = core.distinct;
  if (core.top) result.top = std::get<std::int64_t>(valueOf(core.top->literal));
  bindSources(core, result);
  if (core.filter) result.filter = bindCondition(*core.filter);
  bindGroups(core, result);
  scope_->aggregatesAllowed = true;
  scope_->grouped = isGrouped(core);
  for (const auto& item : core.items) bindItem(item, result);
  const bool oneGroup = scope_->grouped && core.groupBy.empty();
  result.oneRow = oneGroup || core.sources.empty() || (result.top && *result.top <= 1);
  if (core.having) result.having = bindCondition(*core.having);
  return result;
}

void Binder::bindSources(const syntax::Core& core, typed::Core& into) {
  for (const auto& source : core.sources) {
    const auto& table = tableOf(source.table);
    const auto& name = source.alias.empty() ? source.table.table : source.alias;
    const std::string shown = source.alias.empty() ? table.name : source.alias.text;
    typed::Source bound{++sources_, table.database, table.name, joinOf(source.join), nullptr};
    scope_->add({bound.number, &table, shown}, name.where);
    if (source.on) bound.on = bindCondition(*source.on);
    into.sources.push_back(std::move(bound));
  }
}

void Binder::bindGroups(const syntax::Core& core, typed::Core& into) {
  for (const auto& expression : core.groupBy) {
    auto value = bindValue(*expression);
    const auto* column = columnOf(*value);
    if (column == nullptr) refuse(Problem::NotSupported, expression->where, expression->word);
    scope_->groupColumns.emplace_back(column->source, column->name);
    into.groupBy.push_back(std::move(value));
  }
}

void Binder::bindItem(const syntax::SelectItem& item, typed::Core& into) {
  if (item.expression) {
    std::string name = item.alias.text;
    const auto* column = columnNameOf(*item.expression);
    if (name.empty() && column != nullptr) name = column->column.text;
    into.items.push_back({bindValue(*item.expression), std::move(name)});
    return;
  }
  for (const auto* source : starSources(*scope_, item.starOf, item.where)) {
    for (const auto& column : source->table->columns) {
      // Bound like any column, so that the rules for groups apply to a star too.
      syntax::ColumnName name{{source->name, item.where}, {column.name, item.where}};
      const auto found = findColumn(*scope_, name);
      into.items.push_back(
          {make(column.type, typed::Column{found.source, column.name}), column.name});
    }
  }
}

typed::Order Binder::bindOrder(const syntax::OrderItem& item, const syntax::Select& select,
                               typed::Select& into) {
  const auto& expression = *item.expression;
  const auto& bound = into.cores.front();
  const bool onlySelected = select.cores.size() > 1 || bound.distinct;
  typed::Order order;
  order.descending = item.descending;
  const auto byPosition = [&](std::size_t position) {
    order.position = position;
    order.type = bound.items[position - 1].value->type;
    return std::move(order);
  };
  if (const auto* literal = std::get_if<syntax::LiteralValue>(&expression.node)) {
    const bool whole = literal->literal.kind == PieceKind::Whole;
    const auto position = whole ? std::get<std::int64_t>(valueOf(literal->literal)) : 0;
    if (position < 1 || position > static_cast<std::int64_t>(bound.items.size())) {
      refuse(Problem::OrderPosition, expression.where, expression.word);
    }
    return byPosition(static_cast<std::size_t>(position));
  }
  const auto* name = columnNameOf(expression);
  if (name != nullptr && name->qualifier.empty()) {
    const auto position =
        namedItem(name->column, select.cores.front(), bound, select.cores.size() > 1);
    if (position) return byPosition(*position);
  }
  if (select.cores.size() > 1) {
    refuse(Problem::OrderNotSelected, expression.where, expression.word);
  }
  order.value = bindValue(expression);
  order.type = order.value->type;
  if (std::holds_alternative<typed::Constant>(order.value->node)) {
    refuse(Problem::OrderPosition, expression.where, expression.word);
  }
  if (!onlySelected) return order;
  const auto* wanted = columnOf(*order.value);
  for (std::size_t i = 0; wanted != nullptr && i < bound.items.size(); ++i) {
    const auto* column = columnOf(*bound.items[i].value);
    if (column != nullptr && column->source == wanted->source && column->name == wanted->name) {
      return byPosition(i + 1);
    }
  }
  refuse(Problem::OrderNotSelected, expression.where, expression.word);
}

typed::SelectPtr Binder::bindSubquery(const syntax::Select& select, Location where,
                                      bool oneColumn) {
  auto bound = std::make_unique<typed::Select>(bindSelect(select, scope_));
  if (oneColumn && bound->cores.front().items.size() != 1) refuse(Problem::OneColumn, where);
  return bound;
}

}  // namespace korvantes::tsql
