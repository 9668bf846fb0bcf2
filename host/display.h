#pragma once

namespace korvantes::host {

/// Whether windows can be shown: an X server answers (DISPLAY may be left over from a session that
/// has ended), or there is a Wayland session and Qt's plugin for it. Qt itself would abort the
/// program.
bool displayAnswers();

}  // namespace korvantes::host
