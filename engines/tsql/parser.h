#pragma once

#include <string_view>

#include "engines/tsql/syntax.h"
#include "engines/tsql/token_stream.h"

namespace korvantes::tsql {

/// Reads a text that consists of a single statement (one ';' at its end is allowed). Throws
/// Refusal.
syntax::Statement parse(std::string_view text);

// The parts of the parser, each of which reads its construct from the stream's position on.
syntax::ExpressionPtr parseExpression(TokenStream& in);
syntax::Select parseSelect(TokenStream& in);
syntax::TableName parseTableName(TokenStream& in);
syntax::TypeName parseTypeName(TokenStream& in);
/// After CREATE and DROP.
syntax::Statement parseCreate(TokenStream& in);
syntax::Statement parseDrop(TokenStream& in);

}  // namespace korvantes::tsql
