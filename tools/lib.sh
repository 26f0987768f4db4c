# Shared by the tools: installing what is missing, building, and a private Wine.
# Sourced, not run.

ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
BUILD="$ROOT/build"
STAGE="$BUILD/stage"
export WINEPREFIX="$BUILD/wineprefix"
export WINEARCH=win64
export WINEDEBUG=${WINEDEBUG:--all}
# No Mono or Gecko installer prompts; a crashing program ends instead of waiting in the debugger.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d;winedbg.exe=d"

# Debian packages the build, the tests and the screenshots need: command or file that proves each.
PACKAGES=(
  "g++-mingw-w64-x86-64-posix:/usr/bin/x86_64-w64-mingw32-g++-posix"
  "wine:/usr/bin/wine"
  "wine64:/usr/lib/wine/wine64"
  "xvfb:/usr/bin/Xvfb"
  "cmake:/usr/bin/cmake"
  "g++:/usr/bin/g++"
  "googletest:/usr/src/googletest/CMakeLists.txt"
  "ccache:/usr/bin/ccache"
  "x11-apps:/usr/bin/xwd"
  "x11-utils:/usr/bin/xdpyinfo"
  "imagemagick:/usr/bin/convert"
  "fonts-noto-cjk:/usr/share/fonts/opentype/noto/NotoSansCJK-Regular.ttc"
  "python3:/usr/bin/python3"
)

# What tools/fuzz needs beyond that: clang with libFuzzer, and the OpenMP runtime clang links against.
FUZZ_PACKAGES=(
  "clang:/usr/bin/clang++"
  "libclang-rt-dev:/usr/lib/llvm-14/lib/clang/14.0.6/lib/linux/libclang_rt.fuzzer-x86_64.a"
  "libomp-dev:/usr/lib/llvm-14/lib/libomp.so"
)

log() { printf '%s\n' "$*" >&2; }

bootstrap() {
  install_missing "${PACKAGES[@]}"
}

# install_missing PACKAGE:PROOF...: installs the packages whose proof is not on the disk.
install_missing() {
  local missing=() entry
  for entry in "$@"; do
    [ -e "${entry#*:}" ] || missing+=("${entry%%:*}")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  log "installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build_preset PRESET [TARGET...]: configures once, then builds everything or the targets named.
build_preset() {
  local preset=$1
  shift
  # Configured once, and again when the presets have changed since.
  if [ ! -f "$BUILD/$preset/CMakeCache.txt" ] || [ "$ROOT/CMakePresets.json" -nt "$BUILD/$preset/CMakeCache.txt" ]; then
    cmake --preset "$preset" -S "$ROOT" >/dev/null
  fi
  local targets=()
  [ $# -gt 0 ] && targets=(--target "$@")
  cmake --build --preset "$preset" "${targets[@]}" -- --no-print-directory -s
}

# stage [BUILD_TREE [STAGE_DIR]]: lays out an installation tree from sample/ and the Windows build
# (build/win64 into build/stage unless told otherwise): the program two folders below the application
# root with its English dialog text files, the sample user directory as "User", the sample preview
# plug-ins in "command\PvPlugIn"; the Wine prefix's own user directory gets its command lists.
stage() {
  local tree=${1:-$BUILD/win64} to=${2:-$STAGE}
  mkdir -p "$to/command/Option" "$to/Lang"
  if [ -d "$ROOT/sample" ]; then cp -a "$ROOT/sample/." "$to/"; fi
  cp -a "$tree/src/Option.exe" "$to/command/Option/"
  # The dialog text files of the languages the program's own templates are not written in.
  if [ -d "$tree/sample/Lang/dialogs" ]; then cp -a "$tree/sample/Lang/dialogs/." "$to/command/Option/"; fi
  local dll
  for dll in "$tree"/sample/Lang/*.dll; do
    [ -e "$dll" ] && cp -a "$dll" "$to/Lang/"
  done
  # The sample preview plug-ins belong beside the program's folder; their sources have no place there.
  rm -rf "$to/PvPlugIn"
  mkdir -p "$to/command/PvPlugIn"
  for dll in "$tree"/sample/PvPlugIn/*.dll; do
    [ -e "$dll" ] && cp -a "$dll" "$to/command/PvPlugIn/"
  done
  seed_user_directory
}

XVFB_PID=""
# A display whose server is gone (or a zombie nobody reaps) leaves its lock and socket behind; they
# would keep the number taken for ever.
clear_stale_display() {
  local n=$1 lock="/tmp/.X$1-lock" pid state
  [ -e "$lock" ] || return 0
  pid=$(tr -d ' ' <"$lock" 2>/dev/null || true)
  state=$(sed -n 's/^State:[[:space:]]*\([A-Z]\).*/\1/p' "/proc/$pid/status" 2>/dev/null || true)
  if [ -z "$state" ] || [ "$state" = Z ]; then
    rm -f "$lock" "/tmp/.X11-unix/X$n" 2>/dev/null || true
  fi
}

start_display() {
  if [ -n "${DISPLAY:-}" ] && xdpyinfo >/dev/null 2>&1; then return 0; fi
  local n
  for n in $(seq 90 160); do
    clear_stale_display "$n"
    [ -e "/tmp/.X11-unix/X$n" ] || [ -e "/tmp/.X$n-lock" ] && continue
    Xvfb ":$n" -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
    XVFB_PID=$!
    export DISPLAY=":$n"
    local i
    for i in $(seq 50); do
      xdpyinfo >/dev/null 2>&1 && return 0
      sleep 0.1
    done
    kill "$XVFB_PID" 2>/dev/null || true
  done
  log "no X display could be started"
  return 1
}

# A private prefix inside the build tree, kept warm by a persistent wineserver.
start_wine() {
  start_display
  if [ ! -f "$WINEPREFIX/system.reg" ]; then
    log "creating the Wine prefix in $WINEPREFIX"
    wineboot -i >/dev/null 2>&1 || true
    wineserver -w
    # Without a window manager, managed windows cost seconds each to show and hide.
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /t REG_SZ /d N /f >/dev/null 2>&1
    # A crashing program must end, not wait for someone to close the crash dialog.
    wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null 2>&1
    # Japanese dialog text needs a font that has it.
    wine reg add 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontSubstitutes' \
      /v 'MS UI Gothic' /t REG_SZ /d 'Noto Sans CJK JP' /f >/dev/null 2>&1
    wine reg add 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontSubstitutes' \
      /v 'MS Shell Dlg' /t REG_SZ /d 'Noto Sans CJK JP' /f >/dev/null 2>&1
    wineserver -w
  fi
  # A server that already runs for this prefix (another tool, a test run) is as good; -p then fails.
  wineserver -p 2>/dev/null || true
  seed_user_directory
}

# The program's default user directory (the local application data folder + "Qor") gets the sample
# files it lacks: the command lists (without them every start would tell of each missing list) and
# the editor script. Files already there are left as they are.
seed_user_directory() {
  local home="$WINEPREFIX/drive_c/users/$(id -un)"
  local dir="$home/AppData/Local/Qor"
  [ -d "$ROOT/sample/User" ] && [ -d "$home" ] || return 0
  mkdir -p "$dir"
  cp -rn "$ROOT/sample/User/." "$dir/"
}

stop_wine() {
  wineserver -k >/dev/null 2>&1 || true
  if [ -n "$XVFB_PID" ]; then kill "$XVFB_PID" 2>/dev/null || true; fi
}

# True when a wineserver already serves the private prefix (it works in a folder named after the prefix).
wine_server_running() {
  [ -d "$WINEPREFIX" ] || return 1
  local id p
  id=$(printf 'server-%x-%x' "0x$(stat -c %D "$WINEPREFIX")" "$(stat -c %i "$WINEPREFIX")")
  for p in /proc/[0-9]*; do
    case "$(readlink "$p/cwd" 2>/dev/null)" in */"$id") return 0 ;; esac
  done
  return 1
}

# Saves the whole X screen of $DISPLAY as a PNG. /usr/bin/convert is ImageMagick's, whatever PATH says.
screenshot() {
  local png=$1
  mkdir -p "$(dirname "$png")"
  xwd -root -silent | /usr/bin/convert xwd:- "png:$png"
}
