# Installs the Debian packages listed in the given files, only those that are missing.
installer() {
  manque=
  for p in $(sed 's/#.*//' "$@"); do
    dpkg-query -W -f '${Status}' "$p" 2>/dev/null | grep -q 'ok installed' || manque="$manque $p"
  done
  [ -n "$manque" ] || return 0
  root=
  if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null || { echo "Run as root, or install sudo. Missing:$manque" >&2; return 1; }
    root=sudo
  fi
  echo "Installing:$manque"
  # The package lists may be absent or stale: refresh them first.
  $root apt-get -o DPkg::Lock::Timeout=300 update -q
  # shellcheck disable=SC2086
  $root env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 install -y -q --no-install-recommends $manque
}
