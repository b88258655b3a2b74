#pragma once

#include "naming/TSDateCreatedToken.h"
#include "naming/TSDateModifiedToken.h"
#include "naming/TSNameToken.h"
#include "naming/TSNumberToken.h"
#include "naming/TSTokenValue.h"

#include <QObject>
#include <vector>

/// How the names of the output files are made: the mix of text and tokens in the pattern field, the palette
/// that tokens are dragged from, and the example. Main thread only.
///
/// No character is refused, and no name made unique: a name may hold "/", and two photos may get one name.
/// The export deals with both.
class TSNamePattern : public QObject {
    Q_OBJECT

public:
    /// The pattern starts with a Name token.
    TSNamePattern();

    /// The pattern in display order. Setting it tells nobody: `textChanged` does.
    const std::vector<TSTokenValue> &objectValue() const { return m_objectValue; }
    void setObjectValue(const std::vector<TSTokenValue> &values) { m_objectValue = values; }

    /// The tokens of the palette. A drag does not copy them, so all that were dragged from one share its
    /// variant.
    const std::shared_ptr<TSNameToken> &tfName() const { return m_tfName; }
    const std::shared_ptr<TSNumberToken> &tfNumber() const { return m_tfNumber; }
    const std::shared_ptr<TSDateCreatedToken> &tfDateCreated() const { return m_tfDateCreated; }
    const std::shared_ptr<TSDateModifiedToken> &tfDateModified() const { return m_tfDateModified; }

    /// The pattern as the tokens' variants read, without a photo.
    const QString &tfExample() const { return m_tfExample; }

    /// Follows the session's messages from here on.
    void initObserver();

    /// Writes one name a photo to the session's `exportNames`, with the tallies of the tokens used. An empty
    /// pattern empties the names and leaves all else as it was.
    void exportImageNames();
    void updateExampleText();
    /// Tells the session that names have changed; without photos nothing happens, to the example neither.
    void textChanged();

private:
    std::vector<TSTokenValue> m_objectValue;
    std::shared_ptr<TSNameToken> m_tfName = TSNameToken::createNameToken();
    std::shared_ptr<TSNumberToken> m_tfNumber = TSNumberToken::createNumberToken();
    std::shared_ptr<TSDateCreatedToken> m_tfDateCreated = TSDateCreatedToken::createDateCreatedToken();
    std::shared_ptr<TSDateModifiedToken> m_tfDateModified = TSDateModifiedToken::createDateModifiedToken();
    QString m_tfExample;
};
