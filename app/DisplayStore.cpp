#include "app/DisplayStore.h"

#include "app/OwnSettings.h"

namespace zentaro {

namespace {

constexpr const char* kLanguage = "display.language";
constexpr const char* kScale = "display.scale";
constexpr const char* kContrast = "display.contrast";
constexpr const char* kCalm = "display.calm";
constexpr const char* kFingers = "display.fingers";

} // namespace

DisplayChoices ReadDisplay(const OwnSettings& settings)
{
    const auto wish = [&](const char* key) {
        const int number = settings.Number(key, -1, 0, 1);
        return number < 0 ? std::nullopt : std::optional(number != 0);
    };
    return { settings.Text(kLanguage), settings.Number(kScale, 100, 100, 300), wish(kContrast), wish(kCalm),
        settings.Number(kFingers, 0, 0, 1) != 0 };
}

void KeepDisplay(OwnSettings& settings, const DisplayChoices& choices)
{
    const auto keep = [&](const char* key, bool isUsual, const std::string& text) {
        isUsual ? settings.Remove(key) : settings.Set(key, text);
    };
    const auto keepWish = [&](const char* key, std::optional<bool> wish) {
        keep(key, !wish, wish == true ? "1" : "0");
    };
    keep(kLanguage, choices.language.empty(), choices.language);
    keep(kScale, choices.scale == 100, std::to_string(choices.scale));
    keepWish(kContrast, choices.highContrast);
    keepWish(kCalm, choices.lessMotion);
    keep(kFingers, !choices.forFingers, "1");
    IgnoreFailure(settings.Save());
}

double ScaleOf(const DisplayChoices& choices)
{
    // The least of what takes a press is 24 pixels; of these it makes 32.
    constexpr double kForFingers = 32.0 / 24.0;
    return choices.scale / 100.0 * (choices.forFingers ? kForFingers : 1);
}

style::Needs NeedsOf(const DisplayChoices& choices, const platform::Wishes& wishes)
{
    style::Needs needs{ choices.highContrast.value_or(wishes.highContrast),
        choices.lessMotion.value_or(wishes.lessMotion) };
    if (wishes.colours && needs.highContrast) {
        const auto& colours = *wishes.colours;
        needs.colours = { QColor(colours.background), QColor(colours.text), QColor(colours.selection),
            QColor(colours.selected), QColor(colours.accent), QColor(colours.faint) };
    }
    return needs;
}

} // namespace zentaro
