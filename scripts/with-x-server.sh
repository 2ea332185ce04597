#!/usr/bin/env bash
# Runs a command on an X server with a window manager, both its own, and gives the command's exit status.
# Usage: scripts/with-x-server.sh COMMAND [ARGUMENT...]
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

[[ $# -gt 0 ]] || fail "usage: with-x-server.sh COMMAND [ARGUMENT...]"
for tool in Xvfb openbox xprop; do
    command -v "$tool" >/dev/null || fail "$tool is missing: run scripts/install-deps.sh"
done

scratch=$(mktemp -d)
started=()

# shellcheck disable=SC2317  # called by the trap
finish()
{
    local index
    # Last started, first ended: the window manager must not outlive its server.
    for ((index = ${#started[@]} - 1; index >= 0; --index)); do
        kill "${started[index]}" 2>/dev/null || true
        wait "${started[index]}" 2>/dev/null || true
    done
    rm -rf "$scratch"
}
trap finish EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# The server picks a free display by itself and reports it through the pipe, so any number may start at once.
mkfifo "$scratch/display"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -noreset -nolisten tcp 3>"$scratch/display" >"$scratch/xvfb.log" 2>&1 &
started+=($!)
read -r -t 30 number <"$scratch/display" || fail "Xvfb does not start: $(tail -n 1 "$scratch/xvfb.log")"

export DISPLAY=:$number
unset WAYLAND_DISPLAY
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$scratch}
# A window manager may still ask about a window that has just closed, which Qt reports as an X error.
export QT_LOGGING_RULES=${QT_LOGGING_RULES:-qt.qpa.xcb.warning=false}

# Nothing here draws with OpenGL, and the drivers that Qt would load for it leak.
export QT_XCB_GL_INTEGRATION=${QT_XCB_GL_INTEGRATION:-none}

# A home of its own keeps the user's window manager settings out of the tests.
HOME=$scratch XDG_CONFIG_HOME=$scratch openbox --sm-disable >"$scratch/openbox.log" 2>&1 &
started+=($!)

manager_runs()
{
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q '0x'
}

deadline=$((SECONDS + 30))
until manager_runs; do
    [[ $SECONDS -lt $deadline ]] || fail "openbox does not start: $(tail -n 1 "$scratch/openbox.log")"
    sleep 0.05
done

"$@" <&0 &
started+=($!)
status=0
wait $! || status=$?
unset 'started[-1]'
exit "$status"
