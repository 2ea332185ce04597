#include "BuiltInServices.h"
#include "FileNames.h"

#include <QStringList>
#include <dirent.h>
#include <set>
#include <sys/stat.h>
#include <tuple>
#include <vector>

namespace {
// One name of a path and the slashes behind it.
struct Component
{
    QString name;
    QByteArray slashes;
};

int skipSlashes(const QString &path, int from)
{
    while (from < path.size() && path.at(from) == QLatin1Char('/'))
        ++from;
    return from;
}

std::vector<Component> splitPath(const QString &path)
{
    std::vector<Component> components;
    int start = skipSlashes(path, 0);
    while (start < path.size()) {
        const int slash = path.indexOf(QLatin1Char('/'), start);
        const int end = slash < 0 ? path.size() : slash;
        const int next = skipSlashes(path, end);
        components.push_back({path.mid(start, end - start), QByteArray(next - end, '/')});
        start = next;
    }
    return components;
}

// The names in a directory that differ from the given one in case only, in a fixed order.
QStringList caseVariants(const QByteArray &directory, const QString &name)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(
        opendir(directory.isEmpty() ? "." : directory.constData()), &closedir);
    QStringList variants;
    if (!entries)
        return variants;
    while (const dirent *entry = readdir(entries.get())) {
        const auto text = decodeFileName(QByteArray(entry->d_name));
        if (text && *text != name && text->compare(name, Qt::CaseInsensitive) == 0)
            variants.append(*text);
    }
    variants.sort(Qt::CaseSensitive);
    return variants;
}

// A depth-first search for a spelling of a path: directories whose names differ in case only may both exist,
// and only one of them may hold the rest.
class PathSearch
{
public:
    explicit PathSearch(const QString &path)
        : m_components(splitPath(path))
        , m_root(skipSlashes(path, 0), '/')
    {
    }

    std::optional<QByteArray> run() { return descend(m_root, 0); }

private:
    std::optional<QByteArray> descend(const QByteArray &base, std::size_t index);
    std::optional<QByteArray> follow(const QByteArray &base, const QString &name, std::size_t index);

    const std::vector<Component> m_components;
    const QByteArray m_root;
    // Places that were searched in vain; links can lead to one place along very many ways.
    std::set<std::tuple<std::size_t, dev_t, ino_t>> m_visited;
};

std::optional<QByteArray> PathSearch::descend(const QByteArray &base, std::size_t index)
{
    if (index == m_components.size())
        return base;
    const QString &name = m_components[index].name;
    if (auto found = follow(base, name, index))
        return found;
    for (const QString &variant : caseVariants(base, name)) {
        if (auto found = follow(base, variant, index))
            return found;
    }
    return std::nullopt;
}

std::optional<QByteArray> PathSearch::follow(const QByteArray &base, const QString &name, std::size_t index)
{
    const auto encoded = encodeFileName(name);
    if (!encoded)
        return std::nullopt;
    const QByteArray path = base + *encoded + m_components[index].slashes;
    struct stat status = {};
    if (lstat(path.constData(), &status) != 0)
        return std::nullopt;
    if (!m_visited.emplace(index, status.st_dev, status.st_ino).second)
        return std::nullopt;
    return descend(path, index + 1);
}

bool exists(const QString &path)
{
    const auto encoded = encodeFileName(path);
    struct stat status = {};
    return encoded && lstat(encoded->constData(), &status) == 0;
}

class PathCorrection final : public KxPathCorrectionService
{
public:
    bool correct(const std::wstring &path, std::wstring &corrected) override;
};

bool PathCorrection::correct(const std::wstring &path, std::wstring &corrected)
{
    const auto text = toFileName(path);
    if (!text || text->isEmpty())
        return false;
    if (exists(*text)) {
        corrected = path;
        return true;
    }
    const auto found = PathSearch(*text).run();
    const auto spelling = found ? decodeFileName(*found) : std::nullopt;
    if (!spelling)
        return false;
    corrected = spelling->toStdWString();
    return true;
}
} // namespace

std::unique_ptr<KxPathCorrectionService> makePathCorrectionService()
{
    return std::make_unique<PathCorrection>();
}
