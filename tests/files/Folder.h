#ifndef FOLDER_H
#define FOLDER_H

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <string>

/// A fresh folder on disk, with plain access to the files in it.
class Folder
{
public:
    bool isValid() const { return m_directory.isValid(); }

    QString path(const char *name) const { return m_directory.filePath(QLatin1String(name)); }
    std::wstring name(const char *name) const { return path(name).toStdWString(); }

    /// @return the full name of a new file with this content.
    std::wstring make(const char *name, const QByteArray &content = QByteArray()) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot make %s", name);
        return path(name).toStdWString();
    }

    /// @return what is on disk, or "missing".
    QByteArray content(const char *name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("missing");
    }

    bool makeDirectory(const char *name) const
    {
        return QDir(m_directory.path()).mkpath(QLatin1String(name));
    }

private:
    const QTemporaryDir m_directory;
};

#endif
