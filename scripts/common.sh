# Shared by the scripts of this folder: source it, do not run it.
# shellcheck shell=bash
set -euo pipefail

script_name=$(basename "$0")
project_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck disable=SC2034  # project_dir is for the scripts that source this file
readonly script_name project_dir

# fail MESSAGE: ends the script with one line on standard error.
fail()
{
    printf '%s: %s\n' "$script_name" "$*" >&2
    exit 1
}

# say MESSAGE: a progress line with the seconds since the script started.
say()
{
    printf '%s: [%4d s] %s\n' "$script_name" "$SECONDS" "$*"
}

has_display()
{
    [[ -n ${DISPLAY:-} || -n ${WAYLAND_DISPLAY:-} ]]
}

# logged LOG WHAT COMMAND...: runs the command with its output in LOG. When it fails, says so in one line,
# shows the end of the log and ends the script.
logged()
{
    local log=$1 what=$2
    shift 2
    mkdir -p "$(dirname "$log")"
    if "$@" >"$log" 2>&1 </dev/null; then
        return
    fi
    printf '%s: %s failed: see %s\n' "$script_name" "$what" "$log" >&2
    tail -n 40 "$log" >&2
    exit 1
}
