#pragma once

namespace kuyum {

class Database;

/// Countries and customers; returns how many customers (Firkod 1 to count).
int fillCustomers(Database &company, int scale);

} // namespace kuyum
