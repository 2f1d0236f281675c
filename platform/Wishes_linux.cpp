#include "platform/Wishes.h"

#include "platform/Bus_linux.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <utility>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 50ms;

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";
// Not every desktop says it in the common words yet.
constexpr std::string_view kCommon = "org.freedesktop.appearance";
constexpr std::string_view kGnome = "org.gnome.desktop.interface";
constexpr std::string_view kGnomeContrast = "org.gnome.desktop.a11y.interface";
constexpr std::string_view kKde = "org.kde.kdeglobals.KDE";
constexpr std::string_view kGroups[] = { kCommon, kGnome, kGnomeContrast, kKde };

struct Inquiry {
    Wishes wishes;
    bool isAnswered = false;
    std::function<void(const Wishes&)> tell = nullptr;
};

/// Numbers and switches, also as texts; nothing for all else.
std::optional<double> NumberIn(sd_bus_message* message)
{
    char type = 0;
    const char* content = nullptr;
    if (sd_bus_message_peek_type(message, &type, &content) <= 0)
        return std::nullopt;
    std::optional<double> number;
    if (std::strcmp(content, "u") == 0 || std::strcmp(content, "b") == 0) {
        std::uint32_t value = 0;
        if (sd_bus_message_read(message, "v", content, &value) > 0)
            number = value;
    } else if (std::strcmp(content, "s") == 0) {
        const char* value = nullptr;
        if (sd_bus_message_read(message, "v", content, &value) > 0)
            number = std::strtod(value, nullptr);
    } else {
        sd_bus_message_skip(message, "v");
    }
    return number;
}

void Consider(Wishes& wishes, std::string_view group, std::string_view key, double value)
{
    wishes.highContrast |= group == kCommon && key == "contrast" && value == 1;
    wishes.highContrast |= group == kGnomeContrast && key == "high-contrast" && value != 0;
    wishes.lessMotion |= group == kCommon && key == "reduced-motion" && value == 1;
    wishes.lessMotion |= group == kGnome && key == "enable-animations" && value == 0;
    wishes.lessMotion |= group == kKde && key == "AnimationDurationFactor" && value == 0;
}

int OnAnswer(sd_bus_message* answer, void* asked, sd_bus_error*)
{
    auto& inquiry = *static_cast<Inquiry*>(asked);
    inquiry.isAnswered = true;
    inquiry.wishes = {};
    const char* group = nullptr;
    const char* key = nullptr;
    sd_bus_message_enter_container(answer, 'a', "{sa{sv}}");
    while (sd_bus_message_enter_container(answer, 'e', "sa{sv}") > 0) {
        sd_bus_message_read(answer, "s", &group);
        sd_bus_message_enter_container(answer, 'a', "{sv}");
        while (sd_bus_message_enter_container(answer, 'e', "sv") > 0) {
            sd_bus_message_read(answer, "s", &key);
            if (const auto value = NumberIn(answer))
                Consider(inquiry.wishes, group, key, *value);
            sd_bus_message_exit_container(answer);
        }
        sd_bus_message_exit_container(answer);
        sd_bus_message_exit_container(answer);
    }
    if (inquiry.tell && sd_bus_message_is_method_error(answer, nullptr) == 0)
        inquiry.tell(inquiry.wishes);
    return 0;
}

/// Nobody is started to answer it: a desktop with wishes has the service running.
bool Ask(sd_bus* bus, Inquiry& inquiry)
{
    sd_bus_message* made = nullptr;
    bool isSent = false;
    if (sd_bus_message_new_method_call(bus, &made, kService, kPath, kInterface, "ReadAll") >= 0) {
        sd_bus_message_set_auto_start(made, 0);
        sd_bus_message_open_container(made, 'a', "s");
        for (const auto group : kGroups)
            sd_bus_message_append(made, "s", group.data());
        isSent = sd_bus_message_close_container(made) >= 0
            && sd_bus_call_async(bus, nullptr, made, &OnAnswer, &inquiry, 0) >= 0;
    }
    sd_bus_message_unref(made);
    return isSent;
}

class PortalWatch : public WishWatch, public BusClient {
public:
    explicit PortalWatch(std::function<void(const Wishes&)> changed)
    {
        m_inquiry.tell = std::move(changed);
        m_thread = std::make_unique<BusThread>(SessionBusAddress(), *this);
    }

private:
    void Connected(sd_bus* bus) override
    {
        sd_bus_match_signal_async(
            bus, nullptr, kService, kPath, kInterface, "SettingChanged", &OnChange, nullptr, this);
        // What changed since the start, or was not answered in its time.
        m_isDue = true;
    }
    void Speak(sd_bus* bus) override
    {
        if (std::exchange(m_isDue, false))
            Ask(bus, m_inquiry);
    }
    void Lost() override { }

    static int OnChange(sd_bus_message* news, void* watch, sd_bus_error*)
    {
        const char* group = nullptr;
        if (sd_bus_message_read(news, "s", &group) > 0)
            static_cast<PortalWatch*>(watch)->m_isDue |= std::ranges::find(kGroups, group) != std::end(kGroups);
        return 0;
    }

    Inquiry m_inquiry;
    bool m_isDue = false;
    std::unique_ptr<BusThread> m_thread; // goes first
};

} // namespace

std::unique_ptr<WishWatch> WishWatch::Open(std::function<void(const Wishes&)> changed)
{
    return std::make_unique<PortalWatch>(std::move(changed));
}

Wishes SystemWishes()
{
    const auto address = SessionBusAddress();
    const auto bus = address.empty() ? Bus() : ConnectToBus(address, kPatience);
    Inquiry inquiry;
    if (!bus || !Ask(bus.get(), inquiry))
        return {};
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (!inquiry.isAnswered) {
        const int handled = sd_bus_process(bus.get(), nullptr);
        const auto left = end - std::chrono::steady_clock::now();
        if (handled < 0 || left <= 0ms)
            break;
        if (handled == 0)
            sd_bus_wait(bus.get(),
                static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::microseconds>(left).count()));
    }
    return inquiry.wishes;
}

} // namespace zentaro::platform
