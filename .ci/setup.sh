# What ./run, ./test and bench/run share: packages on demand, quiet builds. To be sourced from the
# project's folder.

# need PACKAGE... installs those Debian packages that are missing.
need() {
  local missing=()
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
      missing+=("$package")
  done
  ((${#missing[@]})) || return 0
  local root=()
  ((EUID == 0)) || root=(sudo)
  echo "installing: ${missing[*]}"
  quietly "installing packages" "${root[@]}" apt-get update &&
    quietly "installing packages" "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y --no-install-recommends "${missing[@]}"
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

# build PRESET [TARGET...] configures (where needed) and builds a preset.
build() {
  local preset=$1 folder=build
  shift
  [[ $preset == release ]] || folder=build/$preset
  [[ -f $folder/build.ninja && $folder/build.ninja -nt CMakePresets.json ]] ||
    quietly "configuring $preset" cmake --preset "$preset" || return
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

core_packages=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev fonts-noto-core
  python3-minimal python3-fonttools)
test_packages=(libgtest-dev libgmock-dev clang clang-format libclang-rt-14-dev)
# The last is a font with Han letters, for the pictures of the demo.
qt_packages=(qt6-base-dev qt6-tools-dev libqt6opengl6-dev fonts-droid-fallback)
