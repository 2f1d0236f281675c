#include "app/Language.h"

#include "base/Words.h"
#include "shell/QtText.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace zentaro {

namespace {

constexpr const char* kContext = "Zentaro";

/// One list of texts for widgets and rules alike: what a text means does not depend on the class that shows it.
class OwnTexts : public QTranslator {
public:
    using QTranslator::QTranslator;

    QString translate(const char* context, const char* text, const char*, int count) const override
    {
        const bool isOurs = QByteArrayView(context).startsWith("zentaro::");
        return isOurs ? QTranslator::translate(kContext, text, nullptr, count) : QString();
    }
    std::string Find(std::string_view english, std::optional<int> count) const
    {
        return ToText(QTranslator::translate(kContext, std::string(english).c_str(), nullptr, count.value_or(-1)));
    }
};

QString FileOf(const QString& folder, const QString& language)
{
    return folder + "zentaro_" + language + ".qm";
}

QString FirstOfSystem(const QString& folder)
{
    for (const auto& wanted : QLocale::system().uiLanguages()) {
        const auto language = wanted.section('-', 0, 0);
        if (language == "en" || QFileInfo::exists(FileOf(folder, language)))
            return language;
    }
    return "en";
}

} // namespace

std::string SpeakLanguage(QCoreApplication& application, const std::string& chosen, const QString& folder)
{
    const auto language = chosen.empty() ? FirstOfSystem(folder) : ToQString(chosen);
    auto* const own = new OwnTexts(&application);
    if (language == "en" || !own->load(FileOf(folder, language))) {
        delete own;
        return "en";
    }
    // The dialogs for files are the tool kit's, and so are their texts where they are installed.
    auto* const toolkit = new QTranslator(&application);
    if (toolkit->load("qtbase_" + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(toolkit);
    QCoreApplication::installTranslator(own);
    SetTranslator([own](std::string_view english, std::optional<int> count) { return own->Find(english, count); });
    return ToText(language);
}

} // namespace zentaro
