CREATE TABLE users (
    name TEXT COLLATE "C" PRIMARY KEY,
    password TEXT COLLATE "C" NOT NULL,
    disabled BOOLEAN NOT NULL DEFAULT FALSE
);

-- Only the hash of a session's token is kept.
CREATE TABLE sessions (
    token TEXT COLLATE "C" PRIMARY KEY,
    name TEXT COLLATE "C" NOT NULL REFERENCES users (name),
    expires BIGINT NOT NULL
);
CREATE INDEX sessions_by_name ON sessions (name);
CREATE INDEX sessions_by_expiry ON sessions (expires);
