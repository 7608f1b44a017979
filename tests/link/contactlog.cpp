// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "contactlog.h"

#include <QHostAddress>
#include <QMutex>

#include <dlfcn.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/un.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QMutex mutex;
QStringList contacts;

void note(const QString &contact)
{
    const QMutexLocker lock(&mutex);
    // Qt asks a second time for the same connection, to learn what has become of it.
    if (!contacts.contains(contact))
        contacts.append(contact);
}

QString described(const sockaddr *address)
{
    switch (address->sa_family) {
    case AF_INET: {
        const auto *internet = reinterpret_cast<const sockaddr_in *>(address);
        return u"%1:%2"_s.arg(QHostAddress(address).toString()).arg(ntohs(internet->sin_port));
    }
    case AF_INET6: {
        const auto *internet = reinterpret_cast<const sockaddr_in6 *>(address);
        return u"%1:%2"_s.arg(QHostAddress(address).toString()).arg(ntohs(internet->sin6_port));
    }
    case AF_UNIX:
        return u"unix:"_s
               + QString::fromLocal8Bit(reinterpret_cast<const sockaddr_un *>(address)->sun_path);
    default:
        return u"family %1"_s.arg(address->sa_family);
    }
}

template<typename Function>
Function *systemFunction(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

} // namespace

QStringList takeContacts()
{
    const QMutexLocker lock(&mutex);
    return std::exchange(contacts, {});
}

// The program's own symbols come before those of the C library, for its libraries too.
extern "C" int connect(int fd, const sockaddr *address, socklen_t size)
{
    note(described(address));
    return systemFunction<decltype(connect)>("connect")(fd, address, size);
}

extern "C" int getaddrinfo(const char *name, const char *service, const addrinfo *hints,
                           addrinfo **result)
{
    note(u"name:"_s + QString::fromLocal8Bit(name));
    return systemFunction<decltype(getaddrinfo)>("getaddrinfo")(name, service, hints, result);
}
