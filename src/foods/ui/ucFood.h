#pragma once

#include "foods/ui/FoodRowLayout.h"
#include "toolkit/ListRow.h"

class ElidedLabel;
class QLabel;
class ServingLine;

/// One row of a search result: the name of a food and up to two servings, each with a quantity, an
/// add button and an examine button. A search makes hundreds of rows, and most are never seen. So a
/// row makes its controls only when it comes into view or gets the focus; until then it paints its
/// texts. SetServB decides the height: without serving B the row ends at the top of txtQTY_B.
class ucFood : public ListRow {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption)
    Q_PROPERTY(QString FoodName READ FoodName WRITE SetFoodName)
    Q_PROPERTY(QString ServA READ ServA WRITE SetServA)
    Q_PROPERTY(QString ServB READ ServB WRITE SetServB)
    Q_PROPERTY(QString ID READ ID WRITE SetID)
    Q_PROPERTY(bool isRecipe READ isRecipe WRITE SetIsRecipe)
    Q_PROPERTY(bool RecipeMode READ RecipeMode WRITE SetRecipeMode)

public:
    explicit ucFood(QWidget* parent = nullptr);

    QString FoodName() const { return foodName_; }
    QString ServA() const { return servA_; }
    QString ServB() const { return servB_; }
    QString ID() const { return id_; }
    bool isRecipe() const { return isRecipe_; }
    bool RecipeMode() const { return recipeMode_; }
    void SetFoodName(const QString& name);
    void SetServA(const QString& serving);
    void SetServB(const QString& serving);
    void SetID(const QString& id);
    void SetIsRecipe(bool recipe);
    void SetRecipeMode(bool on); ///< has no effect on the row

    FoodRowLayout layoutRects() const { return FoodRowLayout::Of(width()); }
    void Materialise();      ///< makes the controls if they are missing
    void FocusQuantity();    ///< of serving A
    QString Caption() const; ///< for assistive tools: the food, what it is, its servings
    void Activate() override { FocusQuantity(); }
    QAccessible::Role AccessibleRole() const override { return QAccessible::ListItem; }
    bool Materialised() const { return lines_[0]; }
    void Refresh() override; ///< updates the controls and repaints

Q_SIGNALS:
    void EatFood(qint32 ID, const QString& Serv, double QTY, bool isRecipe);
    void ExamineFood(qint32 ID, const QString& Serv, double QTY, bool isRecipe);
    void Reached(); ///< the keyboard has moved the focus into the row
    void DblClick();

protected:
    bool eventFilter(QObject*, QEvent*) override;
    void changeEvent(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void focusInEvent(QFocusEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;

private:
    void ShowSource(); ///< sets the icon: stock food, custom food or recipe
    QString SourceName() const;
    using Handler = void (ucFood::*)(qint32, const QString&, double, bool);

    QFont NameFont() const;
    void PaintGround(QPainter& painter) const;
    void PaintTexts(QPainter& painter) const;
    void BuildHeading();
    void BuildLine(int line);
    void JoinTabOrder();
    void RefreshHeading(const FoodRowLayout& layout);
    void Raise(Handler raised, int line);
    void ResetButtons(const QObject* except = nullptr);

    QString foodName_, servA_, servB_, id_;
    bool isRecipe_ = false;
    bool recipeMode_ = false;

    ElidedLabel* aaFood_ = nullptr;
    ElidedLabel* lblQTY_ = nullptr;
    QLabel* imgFoodIcon_ = nullptr;
    QLabel* lblID_ = nullptr;
    std::array<ServingLine*, 2> lines_{};
};
