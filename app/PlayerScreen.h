#pragma once

#include "app/ConfigFile.h"

#include <string>

namespace zentaro {

/// A box that the user has to read.
struct UserMessage {
    enum class Icon { Information, Exclamation };
    Icon icon = Icon::Exclamation;
    std::string title = "Zentaro";
    std::string text;
    bool operator==(const UserMessage&) const = default;
};

/// What the player asks of its window. A test stands in for it.
class PlayerScreen {
public:
    virtual ~PlayerScreen() = default;

    /// The whole screen's extent, for the first start.
    virtual ScreenExtent Extent() const = 0;
    virtual bool IsMaximized() const = 0;
    virtual double WindowLeft() const = 0; ///< twips
    virtual double WindowTop() const = 0;  ///< twips

    virtual void ShowWindow() = 0;
    virtual void SetWindowSize(int width, int height) = 0; ///< logical pixels
    virtual void SetWindowPosition(int left, int top) = 0; ///< twips
    virtual void SetTopmost(bool topmost) = 0;
    virtual void SetFullScreen(bool fullScreen) = 0;
    /// The whole text; the window shortens it to its width.
    virtual void ShowCaption(const std::string& text) = 0;
    virtual void FlashCaption() = 0;
    /// Back to what is shown while nothing is loaded: time, bar, audio logo.
    virtual void ShowIdle() = 0;
    virtual void ShowMessage(const UserMessage& message) = 0;
    /// Lets waiting window messages be handled that many times.
    virtual void PumpMessages(int times) = 0;
};

} // namespace zentaro
