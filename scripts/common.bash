# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Tessaly developers
# SPDX-License-Identifier: MIT
#
# What the scripts share. To be sourced; expects usage(), which prints the help text.

# The folder above this file, so that the scripts work from any folder.
# shellcheck disable=SC2034 # read by the scripts that source this file
root=$(CDPATH="" cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd -P)

# Ends the script: fail "what is wrong" [exit status]
fail()
{
    printf '%s: %s\n' "$(basename -- "$0")" "$1" >&2
    exit "${2:-1}"
}

# For an argument that the script does not know.
reject()
{
    printf '%s: unknown argument: %s\n\n' "$(basename -- "$0")" "$1" >&2
    usage >&2
    exit 2
}
