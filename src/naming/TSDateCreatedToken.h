#pragma once

#include "naming/TSDateTimeToken.h"

#include <memory>

/// Stands for the day the file was made.
class TSDateCreatedToken : public TSDateTimeToken {
public:
    static std::shared_ptr<TSDateCreatedToken> createDateCreatedToken();

    TSDateCreatedToken();
    explicit TSDateCreatedToken(platform::KeyedUnarchiver &coder);
    std::shared_ptr<TSToken> copy() const override { return std::make_shared<TSDateCreatedToken>(*this); }
};
