#pragma once

#include "naming/TSDateTimeToken.h"

#include <memory>

/// Stands for the day the photo was taken.
class TSDateShootingToken : public TSDateTimeToken {
public:
    static std::shared_ptr<TSDateShootingToken> createDateShootingToken();

    TSDateShootingToken();
    explicit TSDateShootingToken(platform::KeyedUnarchiver &coder);
    std::shared_ptr<TSToken> copy() const override { return std::make_shared<TSDateShootingToken>(*this); }
};
