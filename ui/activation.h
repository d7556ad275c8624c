// Which version of the system's controls a window is made of: the one that the module's manifest asks for,
// and for everybody else the one they would get without us.
#pragma once

#include <windows.h>

namespace qz {

/// While it lives, windows that this thread makes of the system's classes are of the version that the
/// module's manifest (its resource 2) names, whatever the program asks for. Code that is part of a program
/// changes nothing: the program's own manifest holds for it. Only for the making: no message loop, event or
/// call to a host may run inside but under a CallerActivation. Ends where it began, in reverse order.
class ModuleActivation {
  public:
    /// Throws when the system refuses.
    ModuleActivation();
    ~ModuleActivation();
    ModuleActivation(const ModuleActivation&) = delete;
    ModuleActivation& operator=(const ModuleActivation&) = delete;

  private:
    ULONG_PTR cookie_ = 0;
};

/// The activation context of the code that had a window made. A window's procedure may be called while the
/// module's context is active: when the window or a child of it is being made, and always for windows made
/// under it, as the system keeps the context with the window. What runs in the procedure calls hosts and
/// listeners.
class CallerContext {
  public:
    CallerContext() = default;
    ~CallerContext();
    CallerContext(const CallerContext&) = delete;
    CallerContext& operator=(const CallerContext&) = delete;

    /// Takes the context active on this thread now.
    void Capture() noexcept;
    HANDLE Handle() const noexcept { return handle_; }

  private:
    HANDLE handle_ = nullptr;  ///< Null is the program's own.
};

/// Makes a caller's context active for its scope, which may outlive the `CallerContext`. A system out of
/// memory leaves active what is.
class CallerActivation {
  public:
    explicit CallerActivation(const CallerContext& context) noexcept;
    ~CallerActivation();
    CallerActivation(const CallerActivation&) = delete;
    CallerActivation& operator=(const CallerActivation&) = delete;

  private:
    ULONG_PTR cookie_ = 0;
    bool active_;  ///< Behind the cookie that comes with it.
};

}  // namespace qz
