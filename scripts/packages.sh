# Shared by run.sh and test.sh: installs the Debian packages the build, the
# Debian package (dpkg-dev, file) and the tests of the installed files need,
# skipping apt entirely when all are present.
TORVANE_PACKAGES="build-essential cmake ninja-build ccache pkg-config \
libsqlite3-dev libgtest-dev libgmock-dev libbenchmark-dev libcli11-dev \
qt6-base-dev qt6-base-dev-tools qt6-svg-dev libgl-dev libcups2-dev libinih-dev \
libpugixml-dev librsvg2-dev libcairo2-dev fonts-dejavu-core cups-daemon cups-client poppler-utils \
dpkg-dev file desktop-file-utils appstream libxml2-utils shared-mime-info groff-base"

torvane_install_packages() {
    local missing=()
    local p
    for p in $TORVANE_PACKAGES "$@"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing missing packages: ${missing[*]}"
    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
