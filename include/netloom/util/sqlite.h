// A small C++ face on the SQLite C API: a database handle, a forward-only
// query cursor, a prepared statement with bindings, and the exception all
// three throw. Failures are exceptions here, as callers group several
// calls under one catch and answer with a rollback.
#pragma once

#include <string>

#include "netloom/export.h"

struct sqlite3;
struct sqlite3_stmt;

class NETLOOM_API CppSQLite3Exception {
public:
    CppSQLite3Exception(int errorCode, std::string message);
    int errorCode() const { return mnErrCode; }
    const char* errorMessage() const { return msErrMess.c_str(); }

private:
    int mnErrCode;
    std::string msErrMess;
};

// Forward-only cursor over the rows of one SELECT. Owns its statement.
class NETLOOM_API CppSQLite3Query {
public:
    CppSQLite3Query() = default;
    CppSQLite3Query(sqlite3* db, sqlite3_stmt* stmt, bool eof);
    CppSQLite3Query(CppSQLite3Query&& other) noexcept;
    CppSQLite3Query& operator=(CppSQLite3Query&& other) noexcept;
    CppSQLite3Query(const CppSQLite3Query&) = delete;
    CppSQLite3Query& operator=(const CppSQLite3Query&) = delete;
    ~CppSQLite3Query();

    int numFields() const;
    int fieldIndex(const char* name) const;  // throws when there is no such column
    const char* fieldName(int col) const;
    bool fieldIsNull(int col) const;

    // Text of a column, embedded NULs kept; nullValue for SQL NULL.
    std::string getStringField(int col, const char* nullValue = "") const;
    std::string getStringField(const char* name, const char* nullValue = "") const;
    int getIntField(int col, int nullValue = 0) const;
    int getIntField(const char* name, int nullValue = 0) const;

    bool eof() const { return mbEof; }
    void nextRow();
    void finalize();

private:
    void checkVM() const;
    void checkCol(int col) const;

    sqlite3* mpDB = nullptr;
    sqlite3_stmt* mpVM = nullptr;
    bool mbEof = true;
};

// A prepared statement for repeated writes with bound values.
class NETLOOM_API CppSQLite3Statement {
public:
    CppSQLite3Statement() = default;
    CppSQLite3Statement(sqlite3* db, sqlite3_stmt* stmt);
    CppSQLite3Statement(CppSQLite3Statement&& other) noexcept;
    CppSQLite3Statement& operator=(CppSQLite3Statement&& other) noexcept;
    CppSQLite3Statement(const CppSQLite3Statement&) = delete;
    CppSQLite3Statement& operator=(const CppSQLite3Statement&) = delete;
    ~CppSQLite3Statement();

    // Parameters count from 1, as in SQL.
    void bind(int param, const std::string& value);
    void bind(int param, int value);
    void bindNull(int param);
    int execDML();  // rows changed; resets the statement for the next run
    void reset();
    void finalize();

private:
    void checkVM() const;

    sqlite3* mpDB = nullptr;
    sqlite3_stmt* mpVM = nullptr;
};

class NETLOOM_API CppSQLite3DB {
public:
    CppSQLite3DB() = default;
    CppSQLite3DB(const CppSQLite3DB&) = delete;
    CppSQLite3DB& operator=(const CppSQLite3DB&) = delete;
    ~CppSQLite3DB();

    // Opens (creating when asked) the database file; throws on failure.
    void open(const char* file, bool create = true);
    void close();
    bool isOpen() const { return mpDB != nullptr; }

    bool tableExists(const char* table);
    int execDML(const char* sql);  // rows changed
    CppSQLite3Query execQuery(const char* sql);
    int execScalar(const char* sql, int nullValue = 0);
    CppSQLite3Statement compileStatement(const char* sql);
    void setBusyTimeout(int millis);

private:
    sqlite3_stmt* compile(const char* sql);
    void checkDB() const;

    sqlite3* mpDB = nullptr;
};
