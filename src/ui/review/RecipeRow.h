#pragma once

#include <QObject>
#include <QString>

namespace quillon {

/// A recipe of a clean-up, as it is offered.
struct RecipeRow {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString iconName MEMBER iconName)
    Q_PROPERTY(QString sentence MEMBER sentence)
    Q_PROPERTY(QString warning MEMBER warning)
    Q_PROPERTY(QString countText MEMBER countText)
    Q_PROPERTY(bool isChosen MEMBER isChosen)
    Q_PROPERTY(bool hasDays MEMBER hasDays)
    Q_PROPERTY(int days MEMBER days)

public:
    QString key = {};
    QString title = {};
    QString iconName = {};
    QString sentence = {};
    QString warning = {};
    QString countText = {};
    bool isChosen = false;
    bool hasDays = false;
    int days = 1;

    bool operator==(const RecipeRow&) const = default;
};

} // namespace quillon
