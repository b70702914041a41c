# Sourced by run, test and .ci/run: makes sure that Debian packages are there.

BUILD_PACKAGES="build-essential cmake ninja-build qt6-base-dev qt6-svg-dev qt6-translations-l10n fonts-dejavu-core libcli11-dev nlohmann-json3-dev"
SHOW_PACKAGES="xvfb xauth qt6-wayland"
TEST_PACKAGES="libgtest-dev libbenchmark-dev poppler-utils"
PACKAGE_CHECK_PACKAGES="lintian desktop-file-utils appstream xdotool"
WINDOWS_PACKAGES="g++-mingw-w64-x86-64-posix googletest wine64"
WINDOWS_WINDOW_PACKAGES="dpkg-dev ninja-build debian-archive-keyring nsis zip"
CHECK_PACKAGES="clang libclang-rt-dev clang-format clang-tidy git python3"

# need_packages NAME... - installs those that are missing, as root or through sudo; else says what to type.
need_packages() {
  local missing=() name
  for name in "$@"; do
    dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q '^install ok installed$' || missing+=("$name")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! sudo -n true 2>/dev/null; then
      echo "These packages are missing. Please type this once, then start again:" >&2
      local command="apt-get update && apt-get install -y --no-install-recommends ${missing[*]}"
      if command -v sudo >/dev/null; then echo "  sudo sh -c '$command'" >&2; else echo "  su -c '$command'" >&2; fi
      exit 1
    fi
    as_root=(sudo -n)
  fi
  echo "Installing: ${missing[*]}"
  if ! { "${as_root[@]}" apt-get -q update &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q install -y --no-install-recommends "${missing[@]}"; }; then
    echo "These packages could not be installed: ${missing[*]}" >&2
    echo "Is the network there, and does /etc/apt/sources.list name Debian 12? Then please start again." >&2
    exit 1
  fi
}

# build_preset NAME [CMAKE_OPTION...] - configures and builds one of the presets.
build_preset() {
  local preset=$1
  shift
  if ! mkdir -p build 2>/dev/null || [ ! -w build ]; then
    echo "Nothing can be written to $PWD/build: please copy the sources to a folder of your own, and start there." >&2
    exit 1
  fi
  echo "Building ($preset)"
  cmake --preset "$preset" "$@"
  cmake --build --preset "$preset"
}
