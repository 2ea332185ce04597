#ifndef WORKINGDIRECTORY_H
#define WORKINGDIRECTORY_H

#include <QFile>
#include <QString>

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

/// Changes the current directory as long as one lives; the former one may have any name.
class WorkingDirectory
{
public:
    explicit WorkingDirectory(const QString &path)
    {
        if (chdir(QFile::encodeName(path).constData()) != 0)
            std::abort();
    }
    ~WorkingDirectory()
    {
        if (fchdir(m_former) != 0 || close(m_former) != 0)
            std::abort();
    }
    WorkingDirectory(const WorkingDirectory &) = delete;
    WorkingDirectory &operator=(const WorkingDirectory &) = delete;

private:
    const int m_former = open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
};

#endif
