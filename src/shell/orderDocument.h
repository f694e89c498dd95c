// The order that is open: its record, where it came from, and whether it was changed since.
#pragma once

#include "data/kiv_mat_zpStruct.h"

#include <memory>

class orderDocument
{
public:
    static orderDocument &instance();

    kiv_mat_zpStruct &order() { return *m_order; }
    // The path of the order's file; empty when it has none.
    const QString &path() const { return m_path; }

    // Checks and reads a file; showMessages shows each fault in a box. True when it was read; else
    // it is listed in the errors window, and the document is empty and without a path.
    bool load(const QString &path, bool showMessages = false);

    // The page of the order with the materials of the loaded databases, as it is now.
    QString report() const;

private:
    orderDocument();

    std::unique_ptr<kiv_mat_zpStruct> m_order;
    QString m_path;
};
