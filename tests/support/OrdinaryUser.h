#pragma once

#include <unistd.h>

/// For as long as it lives the process has the rights of an ordinary user, so that permissions
/// count although the tests may be run by root.
class OrdinaryUser {
public:
    OrdinaryUser() : wasRoot_(geteuid() == 0) {
        if (wasRoot_)
            possible_ = setresuid(nobody, nobody, 0) == 0;
    }
    ~OrdinaryUser() {
        if (wasRoot_ && setresuid(0, 0, 0) != 0)
            _exit(1);
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    /// False where the system does not let root take other rights.
    bool Possible() const { return possible_; }

private:
    static constexpr uid_t nobody = 65534;
    bool wasRoot_;
    bool possible_ = true;
};
