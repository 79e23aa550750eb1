# Installs what is missing of the Debian packages that the project is built and run with. Sourced by ./run and ./test.

quillon_packages=(
  g++ cmake ninja-build ccache pkg-config git python3 clang-format clang-tidy
  qt6-base-dev qt6-svg-dev libgl-dev libicu-dev libpugixml-dev nlohmann-json3-dev
  firebird-dev firebird3.0-server firebird3.0-server-core firebird3.0-utils
  libcups2-dev cups-client cups-daemon
  libgtest-dev libbenchmark-dev poppler-utils binutils xvfb xdotool xclip
  fonts-dejavu-core fonts-dejavu-extra fonts-liberation fonts-lohit-deva fonts-wine
)

install_packages() {
  local missing=()
  local package
  for package in "${quillon_packages[@]}"; do
    if [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
      missing+=("$package")
    fi
  done
  if [ ${#missing[@]} -eq 0 ]; then
    echo "All packages are here."
    return
  fi
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then as_root=(sudo); fi
  echo "Installing ${missing[*]} ..."
  "${as_root[@]}" apt-get update -qq
  # No service is started and no question asked: the desk brings its own engine.
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive RUNLEVEL=1 \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Configures and builds a preset; says what the tools said only when one failed.
build_preset() {
  local log=build/$1.log
  mkdir -p build
  echo "Building ($1) ..."
  cmake --preset "$1" >"$log" 2>&1 || { cat "$log"; return 1; }
  cmake --build --preset "$1" >>"$log" 2>&1 || { tail -n 60 "$log"; return 1; }
  rm -f "$log"
}
