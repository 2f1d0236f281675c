#include "shell/HelpTopic.h"

#include "shell/QtText.h"

#include <QVariant>
#include <QWidget>

namespace zentaro {

namespace {

constexpr const char* kProperty = "helpTopic";

} // namespace

void SetHelpTopic(QWidget& widget, const char* page)
{
    widget.setProperty(kProperty, QString(page));
}

std::string HelpTopicOf(const QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const auto page = widget->property(kProperty); page.isValid())
            return ToText(page.toString());
    }
    return "index";
}

} // namespace zentaro
