#pragma once

#include "naming/TSToken.h"

#include <memory>

/// Stands for the photo's place in the list, in as many digits as `showName` has.
class TSNumberToken : public TSToken {
public:
    static std::shared_ptr<TSNumberToken> createNumberToken();

    TSNumberToken();
    explicit TSNumberToken(platform::KeyedUnarchiver &coder);
    std::shared_ptr<TSToken> copy() const override { return std::make_shared<TSNumberToken>(*this); }

    QStringList classChain() const override;
    QStringList tokenMenu() const override;
    void editCellAction(int itemIndex) override;
};
