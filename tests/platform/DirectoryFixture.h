#pragma once

#include <KxPlatform.h>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

/// A fresh current directory that holds the file "file" with the text "before" and the directory "dir".
/// File names are UTF-8 again with each new one.
class DirectoryFixture
{
public:
    DirectoryFixture()
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
        QDir(m_directory.path()).mkdir(QStringLiteral("dir"));
        QFile file(m_directory.filePath(QStringLiteral("file")));
        if (file.open(QIODevice::WriteOnly))
            file.write("before");
        QDir::setCurrent(m_directory.path());
    }
    ~DirectoryFixture() { QDir::setCurrent(QDir::rootPath()); }

    QString path() const { return QDir(m_directory.path()).canonicalPath(); }

private:
    const QTemporaryDir m_directory;
};

inline HANDLE openFile(const std::wstring &path, DWORD access, DWORD disposition)
{
    return CreateFileW(path.c_str(), access, FILE_SHARE_READ, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                       nullptr);
}
