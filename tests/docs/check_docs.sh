#!/usr/bin/env bash
# Holds the pages for readers against the project: every file that they name exists, and the
# transcript of the front page is the one that the sample settlement gives.
set -euo pipefail
cd "${1:-$(dirname "${BASH_SOURCE[0]}")/../..}"
status=0

# Files are named in backquotes or as the target of a link. What only looks like a path, dd/mm/yyyy,
# has neither an extension nor a first folder of ours.
while IFS=: read -r page name; do
  if [[ $name != *.* && ! -d ${name%%/*} ]]; then continue; fi
  if [[ ! -e $name && ! -e $(dirname "$page")/$name ]]; then
    echo "$page names $name, which does not exist"
    status=1
  fi
done < <(grep -oHE '`[A-Za-z0-9_./-]+/[A-Za-z0-9_./-]*`|`[A-Za-z0-9_-]+\.(md|sql|cmake|txt)`|\]\([A-Za-z0-9_./-]+\)' \
  README.md ARCHITECTURE.md docs/*.md | sed -E 's/`//g; s/\]\(([^)]*)\)/\1/' | grep -vE ':(build|out)/')

# The front page leaves lines out, but changes neither lines nor their order.
awk '
  FNR == NR { real[++count] = $0; next }
  /^```$/ { if (inside) exit; inside = 1; next }
  !inside || $0 == "…" { next }
  {
    while (at < count && real[++at] != $0) continue
    if (real[at] != $0) { print "README.md: the transcript has no such line here: " $0; bad = 1; exit }
  }
  END { if (!inside) { print "README.md has no transcript"; bad = 1 } exit bad }
' tests/scripts/sample_settlement.esperado README.md || status=1

exit $status
