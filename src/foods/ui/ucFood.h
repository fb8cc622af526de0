#pragma once

#include "foods/ui/FoodRowLayout.h"
#include "toolkit/ListRow.h"

class ElidedLabel;
class QLabel;
class ServingLine;

/// One row of a search result: a food's name and up to two servings, each with a quantity, an add
/// and an examine button. A search makes hundreds of rows and few are ever looked at: a row is one
/// painted widget until it comes into view or the focus reaches it, and makes its controls then.
/// The height is set when ServB is: an empty one cuts the row at the top of txtQTY_B.
class ucFood : public ListRow {
    Q_OBJECT
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
    void SetRecipeMode(bool on); ///< stored and handed around, without effect on the row

    FoodRowLayout layoutRects() const { return FoodRowLayout::Of(width()); }
    void Materialise(); ///< makes the controls where they are not there yet
    bool Materialised() const { return lines_[0]; }
    void Refresh() override; ///< texts, fonts and places of the controls, then a repaint

Q_SIGNALS:
    void EatFood(qint32 ID, const QString& Serv, double QTY, bool isRecipe);
    void ExamineFood(qint32 ID, const QString& Serv, double QTY, bool isRecipe);
    void Reached(); ///< the focus came into the row from the keyboard
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
    void ShowSource(); ///< the icon of stock foods, of one's own or of recipes
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
