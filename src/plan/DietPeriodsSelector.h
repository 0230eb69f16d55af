#pragma once

#include <QAbstractListModel>
#include <QString>

#include <array>

namespace kesto
{

/// Four buttons, one per phase, for the phases in which a dish is allowed. Stabilization is always selected.
class DietPeriodsSelector : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QString selectedPeriods READ selectedPeriods NOTIFY selectedPeriodsChanged)
public:
    enum Role {
        TagRole = Qt::UserRole, ///< tag: the phase
        TitleRole,              ///< title
        ImageRole,              ///< image: of the button as it is now
        PressedImageRole,       ///< pressedImage: of the button under a finger
        ColorRole,              ///< color: the phase's
        SelectedRole,           ///< selected
        EnabledRole             ///< enabled: whether a touch changes it
    };

    using QAbstractListModel::QAbstractListModel;

    /// Toggles the button of a phase. Does nothing for Stabilization.
    Q_INVOKABLE void buttonTouched(int tag);
    /// The phases in the format of Dish::dietPeriod(): "0, 2, 3".
    [[nodiscard]] QString selectedPeriods() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void selectedPeriodsChanged();

private:
    static constexpr int stabilization = 3;

    std::array<bool, 4> selected_{false, false, false, true};
};

} // namespace kesto
