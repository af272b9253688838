#pragma once

#include "store/NSEntityDescription.h"

#include <string>

/// Asks for every record of an entity.
struct NSFetchRequest
{
    std::string entityName;
};

/// One value computed over all saved records of an entity, answered under a name.
struct NSExpressionDescription
{
    std::string name;
    /// "@min.ATTRIBUTE" or "@max.ATTRIBUTE".
    std::string keyPath;
    NSAttributeType expressionResultType = NSAttributeType::Double;
};
