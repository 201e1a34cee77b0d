// The console loop: one line editor and one terminal joined into a remote
// device console that is driven one key press at a time.
//
// A caller keeps one qxparser::VTY and one GetLineData for the whole session,
// sets the editor up once (vtysh_console_init, or the same calls by hand) and
// then hands every key to parser_main, which returns the text to show and,
// while the terminal stands in a configuration mode, collects the
// configuration commands typed so far in `delta`.
//
// Ownership: nothing here owns the terminal or the editor. vtysh_prompt
// returns a pointer into one process-wide buffer that the next call
// overwrites.
//
// Threads: the prompt buffer, the editor's redraw statics and its hook slots
// are process-wide, so only one console may run at a time.
#pragma once

#include <string>

#include "editor/GetLineData.h"
#include "platform/Export.h"

namespace qxparser {
class VTY;
}

// One key: `buffer` holds the key in its first byte. `output` receives what
// is to be shown (it is assigned, not appended to). `delta` may be null
// outside the configuration modes; in them it collects the commands of the
// session, the first one of a sub-mode preceded by the commands that opened
// it. A line that would overflow the editor shows the editor's error text in
// `output`, and the line is drawn again unchanged.
VTYCONF_API void parser_main(qxparser::VTY* vty, GetLineData* editor, char* buffer, std::string& output,
                             std::string* delta);

// The full prompt: host name and the prompt suffix of the current level, or
// the empty string while the suffix is empty (an open banner). The text lives
// in a process-wide buffer of 1024 bytes (at most 1023 characters).
VTYCONF_API char* vtysh_prompt(qxparser::VTY* vty);

// The "?" hook: prints the help for the line (the "?" is already in it) on a
// new line, takes the "?" back out and asks for a full redraw.
VTYCONF_API int vtysh_help_hook(char* line, int promptLength, int& cursor, qxparser::VTY* vty,
                                std::string& output);
// The tab hook: replaces the line with its completion on a new line and asks
// for a full redraw.
VTYCONF_API int vtysh_tab_hook(char* line, int promptLength, int& cursor, qxparser::VTY* vty,
                               std::string& output);

// Sets an editor up for a console: a console always (Gl_setconsole(1)), the
// screen width, both hooks (parser_init) and the history (historyFile "-"
// keeps none). Raises GetLineError for a width below 21. Returns what the
// first prompt looks like on the screen, already drawn into the editor's
// output string.
VTYCONF_API std::string vtysh_console_init(qxparser::VTY* vty, GetLineData* editor, int width,
                                           const char* historyFile);
