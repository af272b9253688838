#include "model/CVManagedObjectModel.h"

#include "model/CVCard.h"
#include "model/CVStatement.h"

std::optional<NSManagedObjectModel> CVManagedObjectModel::mergedModel()
{
    auto model = NSManagedObjectModel::mergedModelFromDirectory(QStringLiteral(":/models"));
    if (model) {
        model->bindClass(CVCard::managedObjectClass());
        model->bindClass(CVStatement::managedObjectClass());
    }
    return model;
}
