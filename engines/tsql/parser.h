#pragma once

#include <string_view>

#include "engines/tsql/syntax.h"
#include "engines/tsql/token_stream.h"

namespace korvantes::tsql {

/// Reads a text that holds one statement and nothing else (one ';' at its end is allowed). Throws
/// Refusal.
syntax::Statement parse(std::string_view text);

// The parser's parts, each of which reads its construct from where the stream stands.
syntax::ExpressionPtr parseExpression(TokenStream& in);
syntax::Select parseSelect(TokenStream& in);
syntax::TableName parseTableName(TokenStream& in);
syntax::TypeName parseTypeName(TokenStream& in);
/// Behind CREATE and DROP.
syntax::Statement parseCreate(TokenStream& in);
syntax::Statement parseDrop(TokenStream& in);

}  // namespace korvantes::tsql
