#pragma once

#include <sys/types.h>
#include <unistd.h>

/// Users without a name: who AsOrdinaryUser is, and somebody else.
inline constexpr uid_t ordinaryUser = 65534, otherUser = 65533;

/// While it lives, root's rights are laid down, so that a folder without write permission is one;
/// tests are often run by root in containers.
class AsOrdinaryUser
{
public:
    AsOrdinaryUser() : m_user(geteuid()) { m_changed = m_user == 0 && seteuid(ordinaryUser) == 0; }
    ~AsOrdinaryUser()
    {
        if (m_changed && seteuid(m_user) != 0)
            _exit(70);
    }
    AsOrdinaryUser(const AsOrdinaryUser &) = delete;
    AsOrdinaryUser &operator=(const AsOrdinaryUser &) = delete;

private:
    uid_t m_user;
    bool m_changed = false;
};
