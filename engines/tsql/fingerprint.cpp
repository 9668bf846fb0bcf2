#include "engines/tsql/fingerprint.h"

namespace korvantes::tsql {

bool Fingerprint::read(std::string_view text) {
  key.clear();
  literals.clear();
  std::size_t copied = 0;
  for (Piece piece = nextPiece(text, 0); piece.kind != PieceKind::End;
       piece = nextPiece(text, piece.end)) {
    if (piece.kind > PieceKind::Symbol) return false;
    if (!isLiteral(piece.kind)) continue;
    // The mark of a literal's class is a byte that no text can hold outside quotes and comments.
    key.append(text.substr(copied, piece.begin - copied));
    key += static_cast<char>(static_cast<int>(piece.kind) - static_cast<int>(PieceKind::Whole) + 1);
    copied = piece.end;
    literals.push_back(
        {piece.kind, text.substr(piece.begin, piece.end - piece.begin), piece.begin});
  }
  key.append(text.substr(copied));
  return true;
}

}  // namespace korvantes::tsql
