#pragma once

#include <string_view>

#include "engines/tsql/catalogue.h"
#include "engines/tsql/conversion.h"
#include "engines/tsql/scope.h"
#include "engines/tsql/syntax.h"
#include "engines/tsql/typed.h"

namespace korvantes::tsql {

/// Turns the unbound tree of one text into the typed tree: resolves names, types every expression,
/// and decides which literals become parameters. One `bind` per kind of node. Throws Refusal.
class Binder {
 public:
  Binder(const Catalogue& catalogue, std::string_view text) : catalogue_(catalogue), text_(text) {}

  typed::Statement bind(const syntax::Statement& statement);

 private:
  // Statements.
  typed::Select bind(const syntax::Select& select);
  typed::Insert bind(const syntax::Insert& insert);
  typed::Update bind(const syntax::Update& update);
  typed::Delete bind(const syntax::Delete& statement);
  typed::CreateTable bind(const syntax::CreateTable& create);
  typed::CreateIndex bind(const syntax::CreateIndex& create);
  typed::DropTable bind(const syntax::DropTable& drop);

  // Parts of a SELECT.
  typed::Select bindSelect(const syntax::Select& select, Scope* outer);
  typed::Core bindCore(const syntax::Core& core);
  void bindSources(const syntax::Core& core, typed::Core& into);
  void bindGroups(const syntax::Core& core, typed::Core& into);
  void bindItem(const syntax::SelectItem& item, typed::Core& into);
  typed::Order bindOrder(const syntax::OrderItem& item, const syntax::Select& select,
                         typed::Select& into);
  typed::SelectPtr bindSubquery(const syntax::Select& select, Location where, bool oneColumn);

  // Expressions.
  typed::ExpressionPtr bindExpression(const syntax::Expression& expression);
  typed::ExpressionPtr bindValue(const syntax::Expression& expression);
  typed::ExpressionPtr bindCondition(const syntax::Expression& expression);
  /// A value next to values of another type: a literal becomes a parameter if possible.
  typed::ExpressionPtr bindBeside(const syntax::Expression& expression, const Type& other);
  typed::ExpressionPtr bindAssigned(const syntax::Expression& expression,
                                    const ColumnDefinition& column);
  typed::ExpressionPtr lifted(const syntax::Expression& expression, ParameterUse use);

  typed::ExpressionPtr bind(const syntax::ColumnName& name, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::LiteralValue& value, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::NullValue& value, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::Star& star, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::Unary& unary, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::Binary& binary, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::Call& call, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::Cast& cast, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::Case& node, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::Subquery& subquery, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::InList& in, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::InSelect& in, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::Exists& exists, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::Between& between, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::Like& like, const syntax::Expression& at);
  typed::ExpressionPtr bind(const syntax::IsNull& isNull, const syntax::Expression& at);

  typed::ExpressionPtr bindComparison(typed::Comparison op, const syntax::Expression& left,
                                      const syntax::Expression& right, const Place& place);
  typed::ExpressionPtr bindAggregate(const syntax::Call& call, const syntax::Expression& at);
  typed::ExpressionPtr bindRound(const syntax::Call& call, const Place& place);
  typed::ExpressionPtr bindIsNullFunction(const syntax::Call& call, const Place& place);
  typed::ExpressionPtr bindCoalesce(const syntax::Call& call, const Place& place);
  typed::ExpressionPtr bindTextFunction(typed::Operation operation, const syntax::Call& call,
                                        const Place& place);

  const TableDefinition& tableOf(const syntax::TableName& name) const;
  typed::Source targetOf(const syntax::TableName& name);

  const Catalogue& catalogue_;
  std::string_view text_;
  Scope* scope_ = nullptr;
  int sources_ = 0;
  std::vector<ParameterUse> parameters_;
};

/// Whether the expression is true or false rather than a value.
bool isCondition(const typed::Expression& expression);

/// Whether the call is SUM, COUNT, MIN, MAX or AVG.
bool isAggregate(const syntax::Call& call);

/// Whether the expression contains an aggregate of this SELECT, not counting those of subqueries.
bool hasAggregate(const syntax::Expression& expression);

/// The type a declaration or a CAST names; a text without a length has `textLength` characters.
Type typeOf(const syntax::TypeName& name, int textLength);

}  // namespace korvantes::tsql
