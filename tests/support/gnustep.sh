# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# own_gnustep_settings FOLDER: GNUstep keeps the user's settings in the home
# folder that the system knows, whatever HOME says; from now on in FOLDER. Its
# programs find one pasteboard server by a folder for temporary files; that server
# ends with the display of whoever started it, so each display has its own. (The
# folder holds sockets, whose paths must be short.)
own_gnustep_settings() {
    local folder=$1 system=/etc/GNUstep/GNUstep.conf
    [[ -r $system ]] || return 0
    mkdir -p "$folder"
    sed -e '/^GNUSTEP_USER_/d' "$system" >"$folder/GNUstep.conf"
    printf '%s\n' GNUSTEP_USER_CONFIG_FILE= "GNUSTEP_USER_DEFAULTS_DIR=$folder/Defaults" \
        "GNUSTEP_USER_DIR_LIBRARY=$folder/Library" >>"$folder/GNUstep.conf"
    export GNUSTEP_CONFIG_FILE=$folder/GNUstep.conf
    TEMP=$(mktemp -d /tmp/gnustep-XXXXXX)
    export TEMP
    folders_of_display+=("$TEMP")
}
