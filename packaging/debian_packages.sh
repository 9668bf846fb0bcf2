# Sourced by ./run, ./test and .ci/run: the Debian packages that each of them needs, how to install
# them, and how to build. Messages go to standard error, so that standard output is left to the
# program that is started.

build_packages=(g++ cmake ninja-build pkg-config libsqlite3-dev qt6-base-dev libxlsxwriter-dev
  libminizip-dev zlib1g-dev)
run_packages=(libsqlite3-0 libqt6widgets6 libqt6printsupport6 libxlsxwriter4 libminizip1
  qt6-translations-l10n qt6-image-formats-plugins fonts-liberation)
# poppler-utils and python3-openpyxl read back what was printed and exported; locales provides the
# sources of a locale with decimal commas.
test_packages=(libgtest-dev libgmock-dev xvfb xauth poppler-utils python3-openpyxl locales)
check_packages=(git clang-format)

say() { printf '%s\n' "$*" >&2; }

# ensure_packages NAME...: installs the packages that are missing; if none is, it calls nothing but
# dpkg-query.
ensure_packages() {
  if ! command -v dpkg-query >/dev/null; then
    say "This is not a Debian system. Install the equivalents of these packages, then use the CMake"
    say "presets (cmake --preset dev): $*"
    return 1
  fi
  local installed missing=() package
  installed=" $(dpkg-query -W -f '${db:Status-Status}:${Package} ' "$@" 2>/dev/null || true)"
  for package in "$@"; do
    [[ $installed == *" installed:$package "* ]] || missing+=("$package")
  done
  ((${#missing[@]})) || return 0

  local as_root=(env) install
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      say "These packages are missing: ${missing[*]}"
      say "Installing them needs root, and there is no sudo. As root, run:"
      say "  apt-get update && apt-get install --no-install-recommends ${missing[*]}"
      return 1
    fi
    as_root=(sudo env)
  fi
  as_root+=(DEBIAN_FRONTEND=noninteractive)
  # Another apt-get may be running, for instance on a machine that has just booted.
  install=(apt-get -q -y -o DPkg::Lock::Timeout=120 --no-install-recommends install)

  local log
  log=$(mktemp)
  say "Installing what is missing: ${missing[*]}"
  if ! { "${as_root[@]}" apt-get -q update &&
    "${as_root[@]}" "${install[@]}" "${missing[@]}"; } </dev/null >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    rm -f "$log"
    say "The packages could not be installed; these were the last lines of apt-get."
    return 1
  fi
  rm -f "$log"
}

# Reads the progress of ninja and announces the build once, as it may take a while. Step 0 only looks
# for new files.
tell_first_step() {
  local line told=no
  while read -r line; do
    if [[ $told == no && $line =~ ^\[[1-9] ]]; then
      say "Building $1 (a first build takes some minutes)."
      told=yes
    fi
  done
}

# build_preset PRESET: configures build/PRESET if needed and builds what is out of date. Silent unless
# there is something to build or something fails.
build_preset() {
  local preset=$1 directory=build/$1 log options=()
  mkdir -p "$directory"
  log=$directory/build.log
  if [[ ! -f $directory/build.ninja ]]; then
    if command -v ccache >/dev/null; then options=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
    say "Configuring $directory."
    if ! cmake --preset "$preset" "${options[@]}" </dev/null >"$log" 2>&1; then
      cat "$log" >&2
      say "The project could not be configured; this was the output of CMake."
      return 1
    fi
  fi
  if ! ninja -C "$directory" </dev/null 2>&1 | tee "$log" | tell_first_step "$directory"; then
    grep -v '^\[[0-9]*/[0-9]*\] [A-Z][a-z]*ing ' "$log" | head -n 100 >&2
    say "The build failed; the whole log is $log."
    return 1
  fi
}
