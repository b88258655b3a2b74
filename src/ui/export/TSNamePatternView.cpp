#include "ui/export/TSNamePatternView.h"

#include "controls/TSTheme.h"
#include "controls/TSTokenField.h"
#include "controls/TSTokenPill.h"
#include "naming/TSNamePattern.h"
#include "naming/TSNameRefusal.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"

#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <utility>

namespace {

/// Tokens keep their own names; the field shows them in the user's language.
QString inWords(const QString &title)
{
    return title.isEmpty() ? title : qtTrId(title.toUtf8().constData());
}

/// Dates and digits in a menu are no words.
QStringList menuOf(const TSToken &token)
{
    QStringList titles = token.tokenMenu();
    if (dynamic_cast<const TSNameToken *>(&token))
        std::transform(titles.begin(), titles.end(), titles.begin(), inWords);
    return titles;
}

TSFieldToken fieldToken(const std::shared_ptr<TSToken> &token)
{
    return {inWords(token->name()), menuOf(*token), QVariant::fromValue(token)};
}

std::shared_ptr<TSToken> tokenOf(const QVariant &object)
{
    return object.value<std::shared_ptr<TSToken>>();
}

TSFieldParts fieldParts(const std::vector<TSTokenValue> &values)
{
    TSFieldParts parts;
    for (const TSTokenValue &value : values) {
        const auto *token = std::get_if<std::shared_ptr<TSToken>>(&value);
        if (token)
            parts.emplace_back(fieldToken(*token));
        else
            parts.emplace_back(std::get<QString>(value));
    }
    return parts;
}

/// What other fields of the program put on the clipboard may be no token of a name.
std::vector<TSTokenValue> tokenValues(const TSFieldParts &parts)
{
    std::vector<TSTokenValue> values;
    for (const TSFieldPart &part : parts) {
        if (const auto *text = std::get_if<QString>(&part))
            values.emplace_back(*text);
        else if (const auto token = tokenOf(std::get<TSFieldToken>(part).object))
            values.emplace_back(token);
    }
    return values;
}

QLabel *newLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

} // namespace

TSNamePatternView::TSNamePatternView(TSNamePattern &pattern, QWidget *parent)
    : QWidget(parent)
    , m_pattern(pattern)
    , m_labels{newLabel(qtTrId("OutputName"), this), newLabel(qtTrId("Example"), this)}
    , m_tfInput(new TSTokenField(this))
    , m_tfExample(new QLabel(this))
    , m_tfRefusal(new QLabel(this))
{
    m_tfInput->setObjectName(QStringLiteral("tfInput"));
    m_tfInput->setAccessibleName(qtTrId("OutputName"));
    m_tfInput->setPlaceholderText(qtTrId("NoOutputName"));
    m_tfInput->setParts(fieldParts(pattern.objectValue()));
    m_labels.first()->setBuddy(m_tfInput);
    m_tfExample->setObjectName(QStringLiteral("tfExample"));
    m_tfExample->setTextFormat(Qt::PlainText);
    // A long name is cut off; it shall not widen the sheet.
    m_tfExample->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_tfRefusal->setObjectName(QStringLiteral("tfRefusal"));
    m_tfRefusal->setTextFormat(Qt::PlainText);
    m_tfRefusal->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(TSTheme::margin);
    grid->setVerticalSpacing(TSTheme::spacing);
    grid->setColumnStretch(1, 1);
    grid->addWidget(m_labels.first(), 0, 0);
    grid->addWidget(m_tfInput, 0, 1);
    grid->addWidget(newPalette(), 1, 1);
    grid->addWidget(m_labels.last(), 2, 0);
    grid->addWidget(m_tfExample, 2, 1);
    // It keeps its room while there is nothing to tell, as the sheet does its height.
    grid->addWidget(m_tfRefusal, 3, 1);
    connect(m_tfInput, &TSTokenField::partsChanged, this, &TSNamePatternView::controlTextDidChange);
    connect(m_tfInput, &TSTokenField::tokenMenuChosen, this, [](const QVariant &object, int item) {
        if (const auto token = tokenOf(object))
            token->editCellAction(item);
    });
    // The pattern hears both before, and has the example ready.
    const auto *center = TSNotificationCenter::defaultCenter();
    connect(center, &TSNotificationCenter::TSExampleTextChange, this, &TSNamePatternView::showExample);
    connect(center, &TSNotificationCenter::TSExportImageNames, this, &TSNamePatternView::showExample);
    showExample();
}

void TSNamePatternView::setLabelWidth(int width)
{
    for (QLabel *label : m_labels)
        label->setFixedWidth(width);
}

QWidget *TSNamePatternView::newPalette()
{
    auto *palette = new QWidget(this);
    auto *row = new QHBoxLayout(palette);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addWidget(newPill("tfName", m_pattern.tfName()));
    row->addWidget(newPill("tfNumber", m_pattern.tfNumber()));
    row->addWidget(newPill("tfDateCreated", m_pattern.tfDateCreated()));
    row->addWidget(newPill("tfDateModified", m_pattern.tfDateModified()));
    row->addStretch();
    return palette;
}

QWidget *TSNamePatternView::newPill(const char *name, const std::shared_ptr<TSToken> &token)
{
    auto *pill = new TSTokenPill(fieldToken(token), this);
    pill->setObjectName(QLatin1String(name));
    pill->setToolTip(qtTrId("PaletteHint"));
    pill->setAccessibleDescription(qtTrId("PaletteHint"));
    connect(pill, &TSTokenPill::activated, this, &TSNamePatternView::insertToken);
    return pill;
}

void TSNamePatternView::controlTextDidChange()
{
    m_pattern.setObjectValue(tokenValues(m_tfInput->parts()));
    // An emptied field tells nobody: the names in force stay until something else renews them.
    if (!m_pattern.objectValue().empty())
        m_pattern.textChanged();
    showExample();
}

/// Behind what is selected: the way to the palette by Tab selects the whole pattern.
void TSNamePatternView::insertToken(const TSFieldToken &token)
{
    QTextCursor cursor = m_tfInput->textCursor();
    cursor.setPosition(cursor.selectionEnd());
    m_tfInput->setTextCursor(cursor);
    m_tfInput->insertParts({token});
}

void TSNamePatternView::showExample()
{
    m_tfExample->setText(m_pattern.tfExample());
    m_tfExample->setToolTip(m_pattern.tfExample());
    showRefusal();
}

/// After the run every photo would have failed for it.
void TSNamePatternView::showRefusal()
{
    const QString refusal = TSNameRefusal(TSDataManager::dataManager()->exportNames);
    m_tfRefusal->setText(refusal);
    m_tfInput->setAccessibleDescription(refusal);
    if (std::exchange(m_isPossible, refusal.isEmpty()) != m_isPossible)
        Q_EMIT isPossibleChanged(m_isPossible);
}
