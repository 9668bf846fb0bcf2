#include "engines/tsql/binder.h"

namespace korvantes::tsql {

using typed::ExpressionPtr;

namespace {

Place placeOf(const syntax::Expression& at) {
  return {at.where, at.word};
}

Type meetingType(const Type& a, const Type& b, const Place& place) {
  const auto common = commonType(a, b);
  if (!common) {
    refuse(Problem::TypesDiffer, place.where, place.word, nameOf(a) + " y " + nameOf(b));
  }
  return *common;
}

ExpressionPtr unless(bool negated, ExpressionPtr condition) {
  if (!negated) return condition;
  return make(bitType(), typed::Not{std::move(condition)});
}

bool isLiteralLike(const syntax::Expression& expression) {
  if (std::holds_alternative<syntax::LiteralValue>(expression.node)) return true;
  const auto* unary = std::get_if<syntax::Unary>(&expression.node);
  return unary != nullptr && isLiteralLike(*unary->operand);
}

}  // namespace

bool isCondition(const typed::Expression& expression) {
  const auto& node = expression.node;
  return std::holds_alternative<typed::Compare>(node) ||
         std::holds_alternative<typed::Logical>(node) || std::holds_alternative<typed::Not>(node) ||
         std::holds_alternative<typed::InList>(node) ||
         std::holds_alternative<typed::InSelect>(node) ||
         std::holds_alternative<typed::Exists>(node) ||
         std::holds_alternative<typed::Between>(node) ||
         std::holds_alternative<typed::Like>(node) || std::holds_alternative<typed::IsNull>(node);
}

ExpressionPtr Binder::bindComparison(typed::Comparison op, const syntax::Expression& left,
                                     const syntax::Expression& right, const Place& place) {
  ExpressionPtr a;
  ExpressionPtr b;
  if (isLiteralLike(left)) {
    b = bindValue(right);
    a = bindBeside(left, b->type);
  } else {
    a = bindValue(left);
    b = bindBeside(right, a->type);
  }
  const Type common = meetingType(a->type, b->type, place);
  a = compared(std::move(a), common, place);
  b = compared(std::move(b), common, place);
  return make(bitType(), typed::Compare{op, std::move(a), std::move(b)});
}

ExpressionPtr Binder::bind(const syntax::InList& in, const syntax::Expression& at) {
  auto subject = bindValue(*in.subject);
  const Type own = subject->type;
  Type common = own;
  std::vector<ExpressionPtr> items;
  for (const auto& item : in.items) {
    items.push_back(bindBeside(*item, own));
    common = meetingType(common, items.back()->type, placeOf(*item));
  }
  for (auto& item : items) item = compared(std::move(item), common, placeOf(at));
  subject = compared(std::move(subject), common, placeOf(at));
  return unless(in.negated, make(bitType(), typed::InList{std::move(subject), std::move(items)}));
}

ExpressionPtr Binder::bind(const syntax::InSelect& in, const syntax::Expression& at) {
  auto subject = bindValue(*in.subject);
  auto select = bindSubquery(*in.select, at.where, true);
  const Type common =
      meetingType(subject->type, select->cores.front().items.front().value->type, placeOf(at));
  for (auto& core : select->cores) {
    auto& value = core.items.front().value;
    value = compared(std::move(value), common, placeOf(at));
  }
  subject = compared(std::move(subject), common, placeOf(at));
  return unless(in.negated,
                make(bitType(), typed::InSelect{std::move(subject), std::move(select)}));
}

ExpressionPtr Binder::bind(const syntax::Exists& exists, const syntax::Expression& at) {
  return make(bitType(), typed::Exists{bindSubquery(*exists.select, at.where, false)});
}

ExpressionPtr Binder::bind(const syntax::Between& between, const syntax::Expression& at) {
  auto subject = bindValue(*between.subject);
  auto low = bindBeside(*between.low, subject->type);
  auto high = bindBeside(*between.high, subject->type);
  Type common = meetingType(subject->type, low->type, placeOf(at));
  common = meetingType(common, high->type, placeOf(at));
  subject = compared(std::move(subject), common, placeOf(at));
  low = compared(std::move(low), common, placeOf(at));
  high = compared(std::move(high), common, placeOf(at));
  return unless(between.negated, make(bitType(), typed::Between{std::move(subject), std::move(low),
                                                                std::move(high)}));
}

ExpressionPtr Binder::bind(const syntax::Like& like, const syntax::Expression& at) {
  auto subject = bindValue(*like.subject);
  const Type type = subject->type;
  subject = converted(std::move(subject), isText(type) ? type : varCharType(0), placeOf(at));
  auto pattern = bindBeside(*like.pattern, varCharType(0));
  if (!isText(pattern->type) && !isNullConstant(*pattern)) {
    refuse(Problem::WrongType, at.where, at.word, nameOf(pattern->type));
  }
  return unless(like.negated, make(bitType(), typed::Like{std::move(subject), std::move(pattern)}));
}

ExpressionPtr Binder::bind(const syntax::IsNull& isNull, const syntax::Expression&) {
  return unless(isNull.negated, make(bitType(), typed::IsNull{bindValue(*isNull.subject)}));
}

}  // namespace korvantes::tsql
