#pragma once

#include "naming/TSToken.h"

#include <memory>

/// Stands for the file's name in a pattern; among a text's words its `name` tells which value of the photo it
/// is.
class TSNameToken : public TSToken {
public:
    static std::shared_ptr<TSNameToken> createNameToken();

    TSNameToken();
    explicit TSNameToken(platform::KeyedUnarchiver &coder);
    std::shared_ptr<TSToken> copy() const override { return std::make_shared<TSNameToken>(*this); }

    QStringList classChain() const override;
    QStringList tokenMenu() const override;
    /// The cases are changed from the `showName` of the moment, so they add up; the first item goes back to
    /// `name`.
    void editCellAction(int itemIndex) override;
};
