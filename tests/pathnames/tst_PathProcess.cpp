#include "KxPathNames.h"
#include "PlainChecks.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// How a process ends, as its parent sees it.

namespace {

/// Reports its end.
class ReportingVolume : public CKdUiNTFSVolumeDescriptor
{
public:
    ReportingVolume(const wchar_t *name, int pipe)
        : CKdUiNTFSVolumeDescriptor(name)
        , m_pipe(pipe)
    {
    }
    ~ReportingVolume() override
    {
        const char letter = static_cast<char>(CKdUiNTFSVolumeDescriptor::GetLocalName()->GetAt(0));
        CHECK(write(m_pipe, &letter, 1) == 1);
    }
    ReportingVolume(const ReportingVolume &) = delete;
    ReportingVolume &operator=(const ReportingVolume &) = delete;

private:
    const int m_pipe;
};

/// What a child process writes until its end.
template <class Child> std::string outputOf(Child child)
{
    int ends[2];
    CHECK(pipe(ends) == 0);
    if (fork() == 0) {
        child(ends[1]);
        std::exit(EXIT_SUCCESS);
    }
    close(ends[1]);
    std::string output;
    for (char ch; read(ends[0], &ch, 1) == 1;)
        output += ch;
    close(ends[0]);
    int status = 0;
    CHECK(wait(&status) > 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0);
    return output;
}

template <class Child> bool aborts(Child child)
{
    if (fork() == 0) {
        const rlimit noCore = {0, 0};
        setrlimit(RLIMIT_CORE, &noCore);
        child();
        std::_Exit(EXIT_SUCCESS);
    }
    int status = 0;
    return wait(&status) > 0 && WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT;
}

void listIsDeletedAtExit()
{
    const std::string deleted = outputOf([](int pipe) {
        volumeList.append(new ReportingVolume(L"A:", pipe));
        volumeList.append(new ReportingVolume(L"B:", pipe));
    });
    CHECK(deleted == "AB");
}

void openingAsAStreamEndsTheProcess()
{
    const auto openStream = [] {
        FILE *file = nullptr;
        CKdUiPathname().Open(&file, L"r");
    };
    CHECK(aborts(openStream));
    CHECK(aborts([&] {
        try {
            throw 1;
        } catch (int) {
            openStream();
        }
    }));
}

} // namespace

int main()
{
    listIsDeletedAtExit();
    openingAsAStreamEndsTheProcess();
    return failedChecks() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
