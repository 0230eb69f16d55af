#pragma once

#include "components/ViewController.h"
#include "plan/GraphContent.h"
#include "platform/Error.h"

#include <QImage>
#include <QStringList>

#include <array>

namespace kesto
{

class DietDay;

/// The recorded weights, or one of the girths, over a span of time that ends today.
class GraphViewController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QStringList rangeTitles READ rangeTitles CONSTANT)
    Q_PROPERTY(int selectedRange READ selectedRange WRITE setSelectedRange NOTIFY reloaded)
    /// One entry when nothing but the weight can be shown.
    Q_PROPERTY(QStringList measureTitles READ measureTitles NOTIFY reloaded)
    Q_PROPERTY(int selectedMeasure READ selectedMeasure WRITE setSelectedMeasure NOTIFY reloaded)
    Q_PROPERTY(bool trendShown READ isTrendShown WRITE setTrendShown NOTIFY reloaded)
    Q_PROPERTY(QString trendTitle READ trendTitle CONSTANT)
    Q_PROPERTY(QString tableTitle READ tableTitle CONSTANT)
    /// Empty while there is a graph.
    Q_PROPERTY(QString errorText READ errorText NOTIFY reloaded)
    Q_PROPERTY(QString minText READ minText NOTIFY reloaded)
    Q_PROPERTY(QString idealText READ idealText NOTIFY reloaded)
    Q_PROPERTY(QString maxText READ maxText NOTIFY reloaded)
    Q_PROPERTY(QString periodText READ periodText NOTIFY reloaded)
    Q_PROPERTY(QString differenceText READ differenceText NOTIFY reloaded)
    /// Names of the phases that the drawn points lie in, and their colours, in order.
    Q_PROPERTY(QVariantList phases READ phases NOTIFY reloaded)
    /// Index of the point that the flag stands at; −1 without one.
    Q_PROPERTY(int selectedPoint READ selectedPoint WRITE setSelectedPoint NOTIFY selectedPointChanged)
    Q_PROPERTY(QString flagText READ flagText NOTIFY selectedPointChanged)
    /// For a screen reader: the selected point, or the whole graph in one sentence.
    Q_PROPERTY(QString spokenText READ spokenText NOTIFY selectedPointChanged)
public:
    enum class Destination { File, Clipboard };

    GraphViewController();

    [[nodiscard]] QString viewName() const override { return QStringLiteral("GraphScreenView"); }

    [[nodiscard]] QStringList rangeTitles() const;
    [[nodiscard]] int selectedRange() const { return range_; }
    void setSelectedRange(int segment);
    [[nodiscard]] QStringList measureTitles() const;
    [[nodiscard]] int selectedMeasure() const;
    /// Index into measureTitles().
    void setSelectedMeasure(int index);
    [[nodiscard]] bool isTrendShown() const;
    /// Remembered in the user defaults.
    void setTrendShown(bool shown);
    [[nodiscard]] QString trendTitle() const;
    [[nodiscard]] QString tableTitle() const;
    [[nodiscard]] QString errorText() const;
    [[nodiscard]] QString minText() const;
    [[nodiscard]] QString idealText() const;
    [[nodiscard]] QString maxText() const;
    [[nodiscard]] QString periodText() const { return period_; }
    [[nodiscard]] QString differenceText() const { return difference_; }
    [[nodiscard]] QVariantList phases() const;

    /// Reads the records of the selected range and prepares everything that is shown of them.
    void loadData();
    /// A weight in kilograms as the user reads it, with its unit.
    [[nodiscard]] QString kgStringFromNumber(double number) const;

    // What the drawing shows.
    [[nodiscard]] const GraphContent &content() const { return content_; }
    [[nodiscard]] qsizetype numberOfDates() const { return content_.points.size(); }
    [[nodiscard]] QList<QDateTime> dates() const;
    [[nodiscard]] QList<float> values() const;
    [[nodiscard]] std::optional<float> difWeight() const;

    [[nodiscard]] int selectedPoint() const { return selected_; }
    /// An index outside the points takes the flag away.
    void setSelectedPoint(int index);
    /// By an arrow key; without a flag it begins at the latest point.
    Q_INVOKABLE void moveSelection(int steps);
    [[nodiscard]] QString flagText() const;
    [[nodiscard]] QString spokenText() const;

    /// Opens the recorded values of the range as a table.
    Q_INVOKABLE void showTable();
    /// Stands above the graph in a saved picture.
    [[nodiscard]] QString pictureTitle() const;
    /// What the view answers pictureRequested() with. Tells the user where the picture is, or why it is not.
    void takePicture(const QImage &picture, Destination destination);

Q_SIGNALS:
    void reloaded();
    void selectedPointChanged();
    void pictureRequested(kesto::GraphViewController::Destination destination);

protected:
    void viewDidLoad() override;
    void viewWillAppear() override;

private:
    /// What can be drawn.
    enum Measure { Weight, Waist, Hip, Chest, Biceps };
    static constexpr int measureCount = 5;

    void readRecords();
    void upadteLabels();
    void updateRootLabels();
    void share();
    [[nodiscard]] bool isTablet() const;
    [[nodiscard]] Measure shownMeasure() const;
    [[nodiscard]] QString titleOf(Measure measure) const;
    [[nodiscard]] static std::optional<float> valueOf(const DietDay &day, Measure measure);
    [[nodiscard]] QString valueText(double value) const;
    [[nodiscard]] double inUserUnits(double value) const;
    [[nodiscard]] QString unitText() const;
    [[nodiscard]] QString comparedText(const GraphPoint &point) const;
    /// The path of the new file.
    [[nodiscard]] Result<QString> savedPicture(const QImage &picture) const;

    int range_ = 0;
    Measure wanted_ = Weight;
    std::array<QList<GraphPoint>, measureCount> records_; ///< of the range and of what the trend needs before it
    std::array<qsizetype, measureCount> firstInRange_{};
    GraphContent content_;
    QString minText_;
    QString idealText_;
    QString maxText_;
    QString period_;
    QString difference_;
    int selected_ = -1;
};

} // namespace kesto
