#!/usr/bin/env bash
# Holds every #include of the project against the rules of its folder:
#   check_includes.sh [ROOT]       prints FILE:LINE: reason for each violation, exit status 1 if any
#   check_includes.sh --self-test  plants violations and clean files, and checks that it tells them
#                                  apart
#
# tests/ and bench/ may include whatever they test or measure.
set -euo pipefail

standard_headers='algorithm any array atomic bit bitset cassert cctype cerrno cfenv cfloat charconv
chrono cinttypes climits clocale cmath codecvt compare complex concepts condition_variable csetjmp
csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception
filesystem forward_list fstream functional future initializer_list iomanip ios iosfwd iostream
istream iterator latch limits list locale map memory memory_resource mutex new numbers numeric
optional ostream queue random ranges ratio regex scoped_allocator set shared_mutex source_location
span sstream stack stdexcept streambuf string string_view strstream syncstream system_error thread
tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector
version'
# What the system adds for files and their modes; a part of every machine the component runs on.
system_headers='fcntl.h unistd.h sys/stat.h sys/types.h'

check() {
  local root=$1 folder folders=()
  cd "$root"
  for folder in runtime outside data component settlement report agents library engines desktop office sample scripts host; do
    if [[ -d $folder ]]; then folders+=("$folder"); fi
  done
  find "${folders[@]}" -name '*.h' -o -name '*.cpp' | LC_ALL=C sort | xargs -r awk -v standard="${standard_headers//$'\n'/ }" \
    -v system_headers="$system_headers" '
    function list(names, into,    i, parts) {
      split(names, parts, / +/)
      for (i in parts) into[parts[i]] = 1
    }
    BEGIN { list(standard, is_standard); list(system_headers, is_system) }

    # A folder is the first part of a path; engines are told apart by their second.
    function folder(path,    parts) {
      split(path, parts, "/")
      return parts[1] == "engines" ? parts[1] "/" parts[2] : parts[1]
    }
    function within(path, folders) { return index(" " folders " ", " " folder(path) " ") > 0 }

    # The part of scripts/ that knows windows.
    function windows(path) { return path ~ /^scripts\/windows\// }

    # What a folder may include of the others, besides itself.
    function may_include(file, target,    from) {
      from = folder(file)
      if (from == "scripts" && windows(target) && !windows(file)) return 0
      if (folder(target) == from || from == "host") return 1
      if (from == "runtime") return 0
      if (folder(target) == "runtime") return 1
      if (from == "outside") return 0
      # Settlements are written through the database service of the host.
      if (from == "data") return within(target, "outside")
      if (from == "component") return within(target, "outside data")
      if (within(file, "settlement report agents")) {
        if (target ~ /^component\/(KORVAN|appearance|mdoKORVANTES|search_form)\.h$/) return 1
        # A button of the report grid opens the entry screen.
        if (from == "report" && target == "settlement/frmNewLiquidAgentes.h") return 1
        return within(target, "outside data")
      }
      # What shows the screens is above them.
      if (from == "library")
        return within(target, "outside data component settlement report agents")
      # Engines share the compiler.
      if (from ~ /^engines/) return from != "engines/tsql" && within(target, "engines/tsql")
      # Windows and documents know the money rule and nothing else of the component.
      if (within(file, "desktop office")) return within(target, "outside data")
      if (from == "sample") return within(target, "outside data")
      # Scripts play without windows, and put documents into a folder; scripts/windows/ plays windows.
      if (from == "scripts") return within(target, "outside office") || (windows(file) && within(target, "desktop"))
      return 0
    }

    # Headers of other libraries, and the folders that may know them.
    function library_allowed(file, header) {
      if (header ~ /^sqlite3/) return within(file, "engines/sqlite")
      if (header ~ /^(sql|sqlext|sqltypes|sqlucode|odbcinst)\.h$/) return within(file, "engines/odbc")
      if (header ~ /^Q[A-Z]/ || header ~ /^Qt/) return within(file, "desktop office host") || windows(file)
      if (header ~ /^xlsxwriter/) return within(file, "office")
      if (header in is_standard || header in is_system) return 1
      return !within(file, "runtime outside data component settlement report agents library sample " \
          "engines/tsql")
    }

    function complain(reason) { print FILENAME ":" FNR ": " reason; bad = 1 }

    /^[ \t]*#[ \t]*include[ \t]*</ {
      header = $0; sub(/^[^<]*</, "", header); sub(/>.*/, "", header)
      if (!library_allowed(FILENAME, header))
        complain("<" header "> does not belong in " folder(FILENAME) "/")
    }
    /^[ \t]*#[ \t]*include[ \t]*"/ {
      target = $0; sub(/^[^"]*"/, "", target); sub(/".*/, "", target)
      if (target ~ /\.\./ || system("test -f \"" target "\"") != 0)
        complain("\"" target "\" is no path from the root of the project")
      else if (!may_include(FILENAME, target))
        complain(folder(FILENAME) "/ may not include \"" target "\"")
    }
    END { exit bad }' || return 1
}

self_test() {
  local tree status=0 planted found
  tree=$(mktemp -d)
  trap 'rm -rf "$tree"' RETURN
  # Each line: OK or BAD, the file, what it includes.
  local -a cases=(
    'OK runtime/screen/form.cpp "runtime/ado/variant.h"'
    'OK runtime/ado/variant.h <string>'
    'OK runtime/ado/stream.cpp <sys/stat.h>'
    'OK outside/plindor/service.h "runtime/ado/variant.h"'
    'OK data/writing.cpp "outside/plindor/service.h"'
    'OK library/show_screens.cpp "settlement/frmNewLiquidAgentes.h"'
    'OK settlement/frmNewLiquidAgentes.h "component/mdoKORVANTES.h"'
    'OK component/search_form.h <string>'
    'OK settlement/search.h "component/search_form.h"'
    'OK report/grid.cpp "settlement/frmNewLiquidAgentes.h"'
    'OK engines/sqlite/sqlite_connection.cpp <sqlite3.h>'
    'OK engines/sqlite/functions.cpp "engines/tsql/compiler.h"'
    'OK desktop/window.cpp <QWidget>'
    'OK office/sheet/writer.cpp <xlsxwriter.h>'
    'OK office/print/notes.cpp "data/schema.h"'
    'OK sample/rows.cpp "data/schema.h"'
    'OK scripts/windows/user.cpp "desktop/window.cpp"'
    'OK scripts/windows/events.cpp <QWidget>'
    'OK scripts/stage.cpp "runtime/ado/variant.h"'
    'OK host/main.cpp "engines/sqlite/sqlite_connection.cpp"'
    'BAD runtime/screen/control.cpp "outside/plindor/service.h"'
    'BAD outside/plindor/other.cpp "data/schema.h"'
    'BAD outside/plindor/third.cpp <sqlite3.h>'
    'BAD data/schema.h "component/mdoKORVANTES.h"'
    'BAD component/KORVAN.cpp "settlement/frmNewLiquidAgentes.h"'
    'BAD component/mdoKORVANTES.h <QString>'
    'BAD settlement/save.cpp "component/KORVAN.cpp"'
    'BAD settlement/picture.cpp "component/private_folder.h"'
    'BAD settlement/other.cpp "report/grid.cpp"'
    'BAD settlement/relative.cpp "frmNewLiquidAgentes.h"'
    'BAD settlement/above.cpp "../data/schema.h"'
    'BAD agents/browser.cpp "settlement/frmNewLiquidAgentes.h"'
    'BAD agents/picture.cpp <boost/any.hpp>'
    'BAD report/other.cpp "settlement/save.cpp"'
    'BAD engines/tsql/compiler.h "engines/sqlite/functions.cpp"'
    'BAD engines/tsql/lexer.cpp <sqlite3.h>'
    'BAD engines/odbc/connection.cpp "outside/plindor/service.h"'
    'BAD office/sheet.cpp "desktop/window.cpp"'
    'BAD desktop/grid.cpp <xlsxwriter.h>'
    'BAD desktop/robot.cpp "scripts/stage.cpp"'
    'BAD runtime/screen/cues.cpp "scripts/stage.cpp"'
    'BAD scripts/player.cpp "scripts/windows/user.cpp"'
    'BAD scripts/actions.cpp "desktop/window.cpp"'
    'BAD scripts/looks.cpp <QWidget>'
    'BAD sample/people.cpp "scripts/stage.cpp"'
  )
  local line verdict file include
  for line in "${cases[@]}"; do
    read -r verdict file include <<<"$line"
    mkdir -p "$tree/$(dirname "$file")"
    printf '#include %s\n' "$include" >"$tree/$file"
  done
  planted=$(printf '%s\n' "${cases[@]}" | awk '$1 == "BAD" { print $2 }' | LC_ALL=C sort)
  found=$( (check "$tree" || true) | sed 's/:.*//')
  if [[ $planted != "$found" ]]; then
    echo 'The check did not report just the planted violations (< planted, > reported):'
    diff <(echo "$planted") <(echo "$found") || status=1
  fi
  if (check "$tree") >/dev/null; then
    echo 'The check ended well although there were violations.'
    status=1
  fi
  while read -r file; do : >"$tree/$file"; done <<<"$planted"
  if ! (check "$tree"); then
    echo 'The check failed on files that keep the rules.'
    status=1
  fi
  return $status
}

if [[ ${1:-} == --self-test ]]; then
  self_test
else
  check "${1:-$(dirname "${BASH_SOURCE[0]}")/../..}"
fi
