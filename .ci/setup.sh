# shellcheck shell=bash disable=SC2034  # What is set here is used by the scripts that source it.
# What ./run, ./test and bench/run share: installing missing packages, quiet builds. Source it from
# the project's root folder.

# need PACKAGE... installs the Debian packages that are missing. When it cannot, it prints one line
# and returns 1.
need() {
  if ! command -v dpkg-query >/dev/null; then
    echo "not a Debian system: what these packages hold must be there already: $*" >&2
    return 0
  fi
  local missing=() root=() package log
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
      missing+=("$package")
  done
  ((${#missing[@]})) || return 0
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "FAILED: run as root, install sudo, or install by hand: ${missing[*]}" >&2
      return 1
    fi
    root=(sudo)
  fi
  echo "installing: ${missing[*]}"
  log=$(mktemp)
  # A repository that cannot be reached matters only when a package is missing from the others.
  "${root[@]}" apt-get update >"$log" 2>&1 || true
  if "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y --no-install-recommends "${missing[@]}" >>"$log" 2>&1 </dev/null; then
    rm -f "$log"
    packages_installed=1
    return 0
  fi
  echo "FAILED: cannot install packages: $(reason_in "$log") (whole output: $log)" >&2
  return 1
}

# reason_in LOG prints the line of apt's output that tells best why it failed.
reason_in() {
  if grep -qE 'Temporary failure resolving|Could not (connect|resolve)|Cannot initiate the connection|Failed to fetch' "$1"; then
    echo "the package servers cannot be reached; is there a network?"
  else
    grep -m 1 '^E: ' "$1" || tail -n 1 "$1"
  fi
}

# quietly WHAT COMMAND... runs the command and shows its output only when it fails.
quietly() {
  local what=$1 log
  shift
  log=$(mktemp)
  if "$@" >"$log" 2>&1 </dev/null; then
    rm -f "$log"
    return 0
  fi
  tail -n 60 "$log" >&2
  echo "FAILED: $what (whole output: $log)" >&2
  return 1
}

# folder_of PRESET prints the build folder of a preset. The presets `release` and `run` share one.
folder_of() {
  case $1 in
    release | run) echo build ;;
    *) echo "build/$1" ;;
  esac
}

# build PRESET [TARGET...] configures (where needed) and builds a preset.
build() {
  local preset=$1 folder configured
  shift
  folder=$(folder_of "$preset")
  configured=$folder/configured-preset
  if [[ ${packages_installed:-} || ! -f $folder/build.ninja || CMakePresets.json -nt $configured ||
    $(cat "$configured" 2>/dev/null) != "$preset" ]]; then
    rm -f "$configured"
    quietly "configuring $preset" cmake --preset "$preset" || return
    echo "$preset" >"$configured"
  fi
  quietly "building $preset" cmake --build "$folder" -j "$(nproc)" ${1:+--target "$@"}
}

# changed NAME FILE... : true when the files differ from the last `unchanged NAME FILE...`.
changed() {
  [[ $(cat "build/stamps/$1" 2>/dev/null) != "$(fingerprint "${@:2}")" ]]
}
unchanged() {
  mkdir -p build/stamps
  fingerprint "${@:2}" >"build/stamps/$1"
}
fingerprint() {
  find "$@" -type f -print0 | sort -z | xargs -0 sha256sum | sha256sum
}

core_packages=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libpugixml-dev libgettextpo-dev fonts-noto-core
  python3-minimal python3-fonttools)
# ICU is the reference for directions of languages, plural rules and messages.
test_packages=(libgtest-dev libgmock-dev clang clang-format clang-tidy shellcheck
  libclang-rt-14-dev libicu-dev pkgconf doxygen qt6-translations-l10n)
# The last is a font with Han letters, for the pictures of the demo.
qt_packages=(qt6-base-dev qt6-tools-dev libqt6opengl6-dev fonts-droid-fallback)
# The modules are what QtQuick.Controls needs at run time.
quick_packages=(qt6-declarative-dev qml6-module-qtquick qml6-module-qtquick-controls
  qml6-module-qtquick-templates qml6-module-qtquick-window qml6-module-qtquick-layouts
  qml6-module-qtqml-workerscript)
