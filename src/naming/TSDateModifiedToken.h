#pragma once

#include "naming/TSDateTimeToken.h"

#include <memory>

/// Stands for the day the file was last changed.
class TSDateModifiedToken : public TSDateTimeToken {
public:
    static std::shared_ptr<TSDateModifiedToken> createDateModifiedToken();

    TSDateModifiedToken();
    explicit TSDateModifiedToken(platform::KeyedUnarchiver &coder);
    std::shared_ptr<TSToken> copy() const override { return std::make_shared<TSDateModifiedToken>(*this); }
};
