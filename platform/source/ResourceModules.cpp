#include "ResourceModules.h"

#include "LanguageIds.h"
#include "LoadedModules.h"
#include "StringTable.h"

#include <KxEmbeddedResources.h>
#include <KxPlatform.h>
#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <map>
#include <memory>
#include <optional>

class ResourceModule
{
public:
    void add(Bytes image) { change().push_back(image); }
    bool remove(const unsigned char *begin);

    const std::vector<ResourceImage> &images() const;
    const StringTable &strings(LanguageId language);

private:
    struct Strings
    {
        LanguageId language;
        StringTable table;
    };
    std::vector<Bytes> &change();

    std::vector<Bytes> m_bytes;
    // Both are made when they are asked for.
    mutable std::optional<std::vector<ResourceImage>> m_images;
    std::unique_ptr<Strings> m_strings;
};

namespace {
// By base of the module. Never destroyed: some modules leave after this library's static objects.
std::map<const void *, ResourceModule> &modules()
{
    static auto &all = *new std::map<const void *, ResourceModule>;
    return all;
}

ResourceModule *find(const void *base)
{
    const auto found = modules().find(base);
    return base && found != modules().end() ? &found->second : nullptr;
}

// Found once for the many look-ups in it, until modules come or go.
struct ProgramCache
{
    ResourceModule *module = nullptr;
    bool isValid = false;
} g_program;

ResourceModule *programModule()
{
    if (!g_program.isValid)
        g_program = {find(programBase()), true};
    return g_program.module;
}

struct Language
{
    LanguageId id = 0;
    const QCoreApplication *application = nullptr;
    bool isChosen = false; ///< By SetThreadUILanguage().
    bool isKnown = false;
} g_language;

// Asking a QLocale takes longer than copying a string. Strings that are loaded before the application is made
// must not settle the language: it is often set up along with the application.
LanguageId wantedLanguage()
{
    const QCoreApplication *application = QCoreApplication::instance();
    if (!g_language.isChosen && (!g_language.isKnown || g_language.application != application))
        g_language = {languageId(QLocale()), application, false, true};
    return g_language.id;
}
} // namespace

LANGID SetThreadUILanguage(LANGID language)
{
    g_language = {language, nullptr, language != 0, false};
    return wantedLanguage();
}

std::vector<Bytes> &ResourceModule::change()
{
    m_images.reset();
    m_strings.reset();
    return m_bytes;
}

bool ResourceModule::remove(const unsigned char *begin)
{
    auto &bytes = change();
    bytes.erase(
        std::remove_if(bytes.begin(), bytes.end(), [&](const Bytes &image) { return image.data == begin; }),
        bytes.end());
    return bytes.empty();
}

const std::vector<ResourceImage> &ResourceModule::images() const
{
    if (!m_images)
        m_images.emplace(m_bytes.begin(), m_bytes.end());
    return *m_images;
}

const StringTable &ResourceModule::strings(LanguageId language)
{
    if (!m_strings || m_strings->language != language)
        m_strings.reset(new Strings{language, StringTable(images(), language)});
    return m_strings->table;
}

KxEmbeddedResources::KxEmbeddedResources(const unsigned char *begin, const unsigned char *end)
    : m_module(moduleBase(begin))
    , m_begin(begin)
{
    modules()[m_module].add({begin, std::size_t(end - begin)});
    g_program.isValid = false;
}

KxEmbeddedResources::~KxEmbeddedResources()
{
    const auto module = modules().find(m_module);
    if (module != modules().end() && module->second.remove(m_begin))
        modules().erase(module);
    g_program.isValid = false;
}

ResourceModule *resourceModule(HINSTANCE module)
{
    return module ? find(loadedModuleBase(module)) : programModule();
}

Bytes findResource(const ResourceModule &module, ResourceType type, const ResourceName &name)
{
    for (const ResourceImage &image : module.images()) {
        const auto found = image.find(type, name, wantedLanguage());
        if (!found.empty())
            return found.front().data;
    }
    return {};
}

int copyString(ResourceModule &module, unsigned id, wchar_t *buffer, int room)
{
    return module.strings(wantedLanguage()).copy(id, buffer, room);
}
