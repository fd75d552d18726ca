#include "binding/live.h"

#include "base/failure.h"

namespace quor {

TeskServer& Live::TheServer() const
{
    if (Server == nullptr) {
        throw Failure(failures::objectNotSet);
    }
    return *Server;
}

QuorLogin& Live::TheLogin() const
{
    if (Login == nullptr) {
        throw Failure(failures::objectNotSet);
    }
    return *Login;
}

} // namespace quor
