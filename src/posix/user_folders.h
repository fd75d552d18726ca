#pragma once
// The program's own folders of the user, by the XDG base directory rules: an environment variable that isn't set, or
// names a relative path, is ignored. None of them has to exist. All programs take them from here, so that what one
// keeps is what another finds.

#include <string>

namespace quor {

std::string ConfigFolder(); // settings, users, sites: quor in $XDG_CONFIG_HOME, else in ~/.config
std::string StateFolder();  // what a program remembers by itself: quor in $XDG_STATE_HOME, else in ~/.local/state
std::string DataFolder();   // what the user made: quor in $XDG_DATA_HOME, else in ~/.local/share

} // namespace quor
