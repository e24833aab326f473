#pragma once

namespace vellumo {

class appInfoForm;
class myHelp;
struct Environment;

/// Answers the window's links, its Help menu and its closing; all three must live as long as the
/// window.
void ConnectHelp(appInfoForm &window, myHelp &help, const Environment &environment);

} // namespace vellumo
