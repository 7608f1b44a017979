// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include <netdb.h>
#include <unistd.h>

/// In place of the system's own: looks names up for half a minute, in vain.
extern "C" int getaddrinfo(const char * /*name*/, const char * /*service*/,
                           const addrinfo * /*hints*/, addrinfo ** /*result*/)
{
    constexpr unsigned seconds = 30;
    ::sleep(seconds);
    return EAI_AGAIN;
}
