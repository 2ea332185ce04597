#include "KxRegistry.h"

#include "foundation/QtConversions.h"
#include "foundation/SettingsStore.h"

#include <QSettings>

#include <algorithm>
#include <cstring>
#include <cwchar>

namespace {

constexpr std::size_t maxPathLength = 2048;

QString groupOf(const wchar_t *path)
{
    return toQString(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

// QSettings takes no name that is empty once its separators are stripped.
bool isUsableName(const QString &name)
{
    return std::any_of(name.begin(), name.end(), [](QChar ch) { return ch != QLatin1Char('/'); });
}

} // namespace

CRegKey::CRegKey()
    : m_settings(openSettingsStore())
    , m_path(std::make_unique<wchar_t[]>(maxPathLength + 1))
{
}

CRegKey::~CRegKey() = default;

LONG CRegKey::QueryValue(wchar_t *buffer, const wchar_t *valueName, unsigned *count)
{
    if (!buffer || !count)
        return -1;

    const QString name = toQString(valueName);
    m_settings->beginGroup(groupOf(m_path.get()));
    const QString value = isUsableName(name) ? m_settings->value(name).toString() : QString();
    // The group is left open: the next call's group nests inside it.
    if (static_cast<unsigned>(value.length()) > *count)
        return -1;

    // Bytes, not elements: callers clear the rest of their buffer themselves.
    std::memset(buffer, 0, *count);
    if (*count > 0)
        std::wcsncpy(buffer, toCString(value), *count - 1);
    m_settings->endGroup();
    return 0;
}

LONG CRegKey::Create(HKEY, const wchar_t *keyName, wchar_t *, unsigned, unsigned, SECURITY_ATTRIBUTES *,
                     unsigned *)
{
    const std::size_t length = keyName ? std::wcslen(keyName) : 0;
    // No terminator is written: the tail of a longer former path stays.
    if (length <= maxPathLength)
        std::copy_n(keyName, length, m_path.get());
    return 0;
}

LONG CRegKey::SetValue(const wchar_t *value, const wchar_t *valueName, bool, int)
{
    const QString name = toQString(valueName);
    if (!isUsableName(name))
        return 0;

    m_settings->beginGroup(groupOf(m_path.get()));
    m_settings->setValue(name, toQString(value));
    m_settings->endGroup();
    return 0;
}

LONG CRegKey::Open(HKEY, const wchar_t *, unsigned)
{
    return 0;
}

LONG CRegKey::Close()
{
    return 0;
}

LONG CRegKey::RecurseDeleteKey(const wchar_t *)
{
    return 0;
}
