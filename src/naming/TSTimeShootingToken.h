#pragma once

#include "naming/TSDateTimeToken.h"

#include <memory>

/// Stands for the time of day the photo was taken.
class TSTimeShootingToken : public TSDateTimeToken {
public:
    static std::shared_ptr<TSTimeShootingToken> createTimeShootingToken();

    TSTimeShootingToken();
    explicit TSTimeShootingToken(platform::KeyedUnarchiver &coder);
    std::shared_ptr<TSToken> copy() const override { return std::make_shared<TSTimeShootingToken>(*this); }
};
