#include "app/DisplayStore.h"

#include "app/OwnSettings.h"

namespace zentaro {

namespace {

constexpr const char* kLanguage = "display.language";
constexpr const char* kScale = "display.scale";
constexpr const char* kContrast = "display.contrast";
constexpr const char* kCalm = "display.calm";

} // namespace

DisplayChoices ReadDisplay(const OwnSettings& settings)
{
    return { settings.Text(kLanguage), settings.Number(kScale, 100, 100, 300), settings.Number(kContrast, 0, 0, 1) != 0,
        settings.Number(kCalm, 0, 0, 1) != 0 };
}

void KeepDisplay(OwnSettings& settings, const DisplayChoices& choices)
{
    const auto keep = [&](const char* key, bool isUsual, const std::string& text) {
        isUsual ? settings.Remove(key) : settings.Set(key, text);
    };
    keep(kLanguage, choices.language.empty(), choices.language);
    keep(kScale, choices.scale == 100, std::to_string(choices.scale));
    keep(kContrast, !choices.highContrast, "1");
    keep(kCalm, !choices.lessMotion, "1");
    IgnoreFailure(settings.Save());
}

} // namespace zentaro
