#ifndef UNPRIVILEGED_H
#define UNPRIVILEGED_H

#include <cstdlib>
#include <sys/prctl.h>
#include <unistd.h>

/// Permissions bind as long as one lives, also when the superuser runs the test.
class Unprivileged
{
public:
    Unprivileged()
    {
        if (geteuid() == 0)
            m_dropped = setresuid(nobody, nobody, 0) == 0;
    }
    ~Unprivileged()
    {
        if (!m_dropped)
            return;
        if (setresuid(0, 0, 0) != 0)
            std::abort();
        // Leak checkers look into the process when it ends.
        prctl(PR_SET_DUMPABLE, 1);
    }
    Unprivileged(const Unprivileged &) = delete;
    Unprivileged &operator=(const Unprivileged &) = delete;

    bool permissionsBind() const { return geteuid() != 0; }

private:
    static constexpr uid_t nobody = 65534;
    bool m_dropped = false;
};

#endif
