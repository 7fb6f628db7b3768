// CppSQLite3*: thin ownership and error translation over sqlite3_*.
#include "netloom/util/sqlite.h"

#include <sqlite3.h>

#include <utility>

namespace netloom::detail {
namespace {

// Error codes of our own, kept clear of SQLite's range.
constexpr int kNotOpen = 1000;
constexpr int kNoStatement = 1001;
constexpr int kBadField = 1002;

[[noreturn]] void Throw(int code, const std::string& what) { throw CppSQLite3Exception(code, what); }

[[noreturn]] void ThrowFrom(sqlite3* db, int rc) {
    Throw(rc, db ? sqlite3_errmsg(db) : sqlite3_errstr(rc));
}

}  // namespace
}  // namespace netloom::detail

using namespace netloom::detail;

CppSQLite3Exception::CppSQLite3Exception(int errorCode, std::string message)
    : mnErrCode(errorCode), msErrMess(std::move(message)) {}

// ---------------------------------------------------------------- query

CppSQLite3Query::CppSQLite3Query(sqlite3* db, sqlite3_stmt* stmt, bool eof)
    : mpDB(db), mpVM(stmt), mbEof(eof) {}

CppSQLite3Query::CppSQLite3Query(CppSQLite3Query&& other) noexcept
    : mpDB(std::exchange(other.mpDB, nullptr)),
      mpVM(std::exchange(other.mpVM, nullptr)),
      mbEof(std::exchange(other.mbEof, true)) {}

CppSQLite3Query& CppSQLite3Query::operator=(CppSQLite3Query&& other) noexcept {
    if (this != &other) {
        finalize();
        mpDB = std::exchange(other.mpDB, nullptr);
        mpVM = std::exchange(other.mpVM, nullptr);
        mbEof = std::exchange(other.mbEof, true);
    }
    return *this;
}

CppSQLite3Query::~CppSQLite3Query() { finalize(); }

void CppSQLite3Query::checkVM() const {
    if (!mpVM) Throw(kNoStatement, "Null Virtual Machine pointer");
}

void CppSQLite3Query::checkCol(int col) const {
    checkVM();
    if (col < 0 || col >= sqlite3_column_count(mpVM)) Throw(kBadField, "Invalid field index requested");
}

int CppSQLite3Query::numFields() const {
    checkVM();
    return sqlite3_column_count(mpVM);
}

int CppSQLite3Query::fieldIndex(const char* name) const {
    checkVM();
    if (name) {
        const int n = sqlite3_column_count(mpVM);
        for (int i = 0; i < n; ++i) {
            const char* col = sqlite3_column_name(mpVM, i);
            if (col && sqlite3_stricmp(col, name) == 0) return i;
        }
    }
    Throw(kBadField, "Invalid field name requested");
}

const char* CppSQLite3Query::fieldName(int col) const {
    checkCol(col);
    return sqlite3_column_name(mpVM, col);
}

bool CppSQLite3Query::fieldIsNull(int col) const {
    checkCol(col);
    return sqlite3_column_type(mpVM, col) == SQLITE_NULL;
}

std::string CppSQLite3Query::getStringField(int col, const char* nullValue) const {
    checkCol(col);
    if (mbEof) Throw(kBadField, "No current row");
    if (sqlite3_column_type(mpVM, col) == SQLITE_NULL) return nullValue ? nullValue : "";
    // Ask for the text first, then its length: the order SQLite documents
    // for a conversion to happen before the byte count is taken.
    const auto* text = sqlite3_column_text(mpVM, col);
    const int len = sqlite3_column_bytes(mpVM, col);
    if (!text || len <= 0) return std::string();
    return std::string(reinterpret_cast<const char*>(text), static_cast<size_t>(len));
}

std::string CppSQLite3Query::getStringField(const char* name, const char* nullValue) const {
    return getStringField(fieldIndex(name), nullValue);
}

int CppSQLite3Query::getIntField(int col, int nullValue) const {
    checkCol(col);
    if (mbEof) Throw(kBadField, "No current row");
    if (sqlite3_column_type(mpVM, col) == SQLITE_NULL) return nullValue;
    return sqlite3_column_int(mpVM, col);
}

int CppSQLite3Query::getIntField(const char* name, int nullValue) const {
    return getIntField(fieldIndex(name), nullValue);
}

void CppSQLite3Query::nextRow() {
    checkVM();
    if (mbEof) return;
    const int rc = sqlite3_step(mpVM);
    if (rc == SQLITE_ROW) return;
    mbEof = true;
    if (rc != SQLITE_DONE) {
        sqlite3_reset(mpVM);
        ThrowFrom(mpDB, rc);
    }
}

void CppSQLite3Query::finalize() {
    if (mpVM) sqlite3_finalize(mpVM);
    mpVM = nullptr;
    mbEof = true;
}

// ------------------------------------------------------------ statement

CppSQLite3Statement::CppSQLite3Statement(sqlite3* db, sqlite3_stmt* stmt) : mpDB(db), mpVM(stmt) {}

CppSQLite3Statement::CppSQLite3Statement(CppSQLite3Statement&& other) noexcept
    : mpDB(std::exchange(other.mpDB, nullptr)), mpVM(std::exchange(other.mpVM, nullptr)) {}

CppSQLite3Statement& CppSQLite3Statement::operator=(CppSQLite3Statement&& other) noexcept {
    if (this != &other) {
        finalize();
        mpDB = std::exchange(other.mpDB, nullptr);
        mpVM = std::exchange(other.mpVM, nullptr);
    }
    return *this;
}

CppSQLite3Statement::~CppSQLite3Statement() { finalize(); }

void CppSQLite3Statement::checkVM() const {
    if (!mpVM) Throw(kNoStatement, "Null Virtual Machine pointer");
}

void CppSQLite3Statement::bind(int param, const std::string& value) {
    checkVM();
    const int rc = sqlite3_bind_text(mpVM, param, value.data(), static_cast<int>(value.size()),
                                     SQLITE_TRANSIENT);
    if (rc != SQLITE_OK) ThrowFrom(mpDB, rc);
}

void CppSQLite3Statement::bind(int param, int value) {
    checkVM();
    const int rc = sqlite3_bind_int(mpVM, param, value);
    if (rc != SQLITE_OK) ThrowFrom(mpDB, rc);
}

void CppSQLite3Statement::bindNull(int param) {
    checkVM();
    const int rc = sqlite3_bind_null(mpVM, param);
    if (rc != SQLITE_OK) ThrowFrom(mpDB, rc);
}

int CppSQLite3Statement::execDML() {
    checkVM();
    const int rc = sqlite3_step(mpVM);
    if (rc != SQLITE_DONE && rc != SQLITE_ROW) {
        sqlite3_reset(mpVM);
        ThrowFrom(mpDB, rc);
    }
    const int changed = sqlite3_changes(mpDB);
    reset();
    return changed;
}

void CppSQLite3Statement::reset() {
    if (!mpVM) return;
    sqlite3_reset(mpVM);
    sqlite3_clear_bindings(mpVM);
}

void CppSQLite3Statement::finalize() {
    if (mpVM) sqlite3_finalize(mpVM);
    mpVM = nullptr;
}

// ------------------------------------------------------------- database

CppSQLite3DB::~CppSQLite3DB() { close(); }

void CppSQLite3DB::open(const char* file, bool create) {
    close();
    const int flags = SQLITE_OPEN_READWRITE | (create ? SQLITE_OPEN_CREATE : 0) | SQLITE_OPEN_NOMUTEX;
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(file ? file : "", &db, flags, nullptr);
    if (rc != SQLITE_OK) {
        const std::string msg = db ? sqlite3_errmsg(db) : sqlite3_errstr(rc);
        sqlite3_close(db);
        Throw(rc, msg);
    }
    mpDB = db;
    sqlite3_busy_timeout(mpDB, 60000);
}

void CppSQLite3DB::close() {
    if (mpDB) sqlite3_close_v2(mpDB);
    mpDB = nullptr;
}

void CppSQLite3DB::checkDB() const {
    if (!mpDB) Throw(kNotOpen, "Database not open");
}

sqlite3_stmt* CppSQLite3DB::compile(const char* sql) {
    checkDB();
    sqlite3_stmt* stmt = nullptr;
    const int rc = sqlite3_prepare_v2(mpDB, sql ? sql : "", -1, &stmt, nullptr);
    if (rc != SQLITE_OK) {
        sqlite3_finalize(stmt);
        ThrowFrom(mpDB, rc);
    }
    if (!stmt) Throw(kNoStatement, "Empty statement");
    return stmt;
}

bool CppSQLite3DB::tableExists(const char* table) {
    checkDB();
    sqlite3_stmt* stmt = compile("select count(*) from sqlite_master where type='table' and name=?");
    sqlite3_bind_text(stmt, 1, table ? table : "", -1, SQLITE_TRANSIENT);
    const int rc = sqlite3_step(stmt);
    const bool found = rc == SQLITE_ROW && sqlite3_column_int(stmt, 0) > 0;
    sqlite3_finalize(stmt);
    if (rc != SQLITE_ROW) ThrowFrom(mpDB, rc);
    return found;
}

int CppSQLite3DB::execDML(const char* sql) {
    checkDB();
    char* err = nullptr;
    const int rc = sqlite3_exec(mpDB, sql ? sql : "", nullptr, nullptr, &err);
    if (rc != SQLITE_OK) {
        const std::string msg = err ? err : sqlite3_errstr(rc);
        sqlite3_free(err);
        Throw(rc, msg);
    }
    return sqlite3_changes(mpDB);
}

CppSQLite3Query CppSQLite3DB::execQuery(const char* sql) {
    sqlite3_stmt* stmt = compile(sql);
    const int rc = sqlite3_step(stmt);
    if (rc == SQLITE_DONE) return CppSQLite3Query(mpDB, stmt, true);
    if (rc == SQLITE_ROW) return CppSQLite3Query(mpDB, stmt, false);
    sqlite3_finalize(stmt);
    ThrowFrom(mpDB, rc);
}

int CppSQLite3DB::execScalar(const char* sql, int nullValue) {
    CppSQLite3Query q = execQuery(sql);
    if (q.eof() || q.numFields() < 1) Throw(kBadField, "Invalid scalar query");
    return q.getIntField(0, nullValue);
}

CppSQLite3Statement CppSQLite3DB::compileStatement(const char* sql) {
    return CppSQLite3Statement(mpDB, compile(sql));
}

void CppSQLite3DB::setBusyTimeout(int millis) {
    checkDB();
    sqlite3_busy_timeout(mpDB, millis);
}
