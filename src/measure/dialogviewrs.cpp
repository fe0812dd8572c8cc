#include "measure/dialogviewrs.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

DialogViewRs::DialogViewRs(QWidget* parent, float rs, float irr1, float irr2) : QDialog(parent)
{
    setObjectName("RsDataMeasures");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(tr("Rs"));
    QGridLayout* grid = new QGridLayout;
    grid->setHorizontalSpacing(30);
    createLabel(tr("Rs"), rs, tr("ohm"), grid, 0);
    createLabel(tr("Irr. 1"), irr1, QString::fromUtf8("W/m²"), grid, 1);
    createLabel(tr("Irr. 2"), irr2, QString::fromUtf8("W/m²"), grid, 2);
    QPushButton* ok = new QPushButton(tr("OK"), this);
    ok->setObjectName("OK");
    connect(ok, &QPushButton::clicked, this, &QDialog::reject);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addLayout(grid);
    box->addWidget(ok);
}

void DialogViewRs::createLabel(QString name, float value, QString unit, QGridLayout* grid, int row)
{
    QString text = QString::number(static_cast<double>(value), 'f', 2);
    if (text == "nan")
        text = "----";
    QLabel* valueLabel = new QLabel(text, this);
    valueLabel->setObjectName(name);
    valueLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(new QLabel(name, this), row, 0);
    grid->addWidget(new QLabel(":", this), row, 1);
    grid->addWidget(valueLabel, row, 2);
    grid->addWidget(new QLabel(unit, this), row, 3);
}
