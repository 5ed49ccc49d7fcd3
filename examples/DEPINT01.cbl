      *****************************************************************
      * DEPINT01  Savings deposits: nightly posting and interest.
      *
      * Reads the day's transactions in account order, posts them to
      * the account master, accrues interest by rate band and prints
      * the posting journal. Transactions that cannot be posted go to
      * the reject file with a reason code.
      *****************************************************************
       IDENTIFICATION DIVISION.
       PROGRAM-ID. DEPINT01.
       AUTHOR. DEPOSITS TEAM.
       ENVIRONMENT DIVISION.
       INPUT-OUTPUT SECTION.
       FILE-CONTROL.
           SELECT TXN-FILE ASSIGN TO "DEPTXN"
               ORGANIZATION IS SEQUENTIAL
               ACCESS MODE IS SEQUENTIAL
               FILE STATUS IS WS-TXN-STATUS.
           SELECT ACCT-MASTER ASSIGN TO "DEPMAST"
               ORGANIZATION IS INDEXED
               ACCESS MODE IS DYNAMIC
               RECORD KEY IS ACM-ACCT-NO
               ALTERNATE RECORD KEY IS ACM-CUST-NO WITH DUPLICATES
               FILE STATUS IS WS-MAST-STATUS.
           SELECT RATE-FILE ASSIGN TO "DEPRATE"
               ORGANIZATION IS RELATIVE
               ACCESS MODE IS RANDOM
               RELATIVE KEY IS WS-RATE-SLOT
               FILE STATUS IS WS-RATE-STATUS.
           SELECT JOURNAL ASSIGN TO "DEPJRNL"
               ORGANIZATION IS LINE SEQUENTIAL
               FILE STATUS IS WS-JRNL-STATUS.
           SELECT REJECT-FILE ASSIGN TO "DEPREJ"
               ORGANIZATION IS SEQUENTIAL
               FILE STATUS IS WS-REJ-STATUS.

       DATA DIVISION.
       FILE SECTION.
      * The day's transactions: one header, details, one trailer.
       FD  TXN-FILE.
       01  TXN-HEADER.
           05  TXH-REC-TYPE            PIC X(01).
               88  TXH-IS-HEADER       VALUE "H".
           05  TXH-BUSINESS-DATE       PIC 9(08).
           05  TXH-SOURCE-SYSTEM       PIC X(08).
               88  TXH-FROM-BRANCH     VALUE "BRANCH".
               88  TXH-FROM-CLEARING   VALUE "CLEAR01" "CLEAR02".
           05  TXH-BATCH-NO            PIC 9(06).
           05  FILLER                  PIC X(57).
       01  TXN-DETAIL.
           05  TXD-REC-TYPE            PIC X(01).
               88  TXD-IS-DETAIL       VALUE "D".
           05  TXD-ACCT-NO             PIC 9(12).
           05  TXD-ACCT-PARTS REDEFINES TXD-ACCT-NO.
               10  TXD-BRANCH          PIC 9(04).
               10  TXD-SERIAL          PIC 9(07).
               10  TXD-CHECK-DIGIT     PIC 9(01).
           05  TXD-CODE                PIC 9(02).
               88  TXD-DEPOSIT         VALUE 10 THRU 19.
               88  TXD-WITHDRAWAL      VALUE 20 THRU 28.
               88  TXD-CLOSE-OUT       VALUE 29.
               88  TXD-ADJUSTMENT      VALUE 30 40 THRU 45.
           05  TXD-AMOUNT              PIC S9(09)V99
                                       SIGN TRAILING SEPARATE.
           05  TXD-VALUE-DATE          PIC 9(08).
           05  TXD-CHANNEL             PIC X(02).
               88  TXD-COUNTER         VALUE "CT".
               88  TXD-ATM             VALUE "A0" THRU "A9".
               88  TXD-ONLINE          VALUE "WB" "MB".
           05  TXD-TELLER-ID           PIC X(08).
           05  TXD-NARRATIVE           PIC X(35).
       01  TXN-TRAILER.
           05  TXT-REC-TYPE            PIC X(01).
               88  TXT-IS-TRAILER      VALUE "T".
           05  TXT-DETAIL-COUNT        PIC 9(09).
           05  TXT-HASH-TOTAL          PIC 9(15).
           05  TXT-NET-AMOUNT          PIC S9(13)V99
                                       SIGN LEADING SEPARATE.
           05  FILLER                  PIC X(39).

      * Account master, one record an account.
       FD  ACCT-MASTER.
       01  ACCT-RECORD.
           05  ACM-ACCT-NO             PIC 9(12).
           05  ACM-CUST-NO             PIC 9(10).
           05  ACM-PRODUCT             PIC X(04).
               88  ACM-EASY-ACCESS     VALUE "EASY".
               88  ACM-NOTICE          VALUE "NT30" "NT60" "NT90".
               88  ACM-FIXED-TERM      VALUE "FX01" THRU "FX60".
           05  ACM-STATUS              PIC 9(01).
               88  ACM-OPEN            VALUE 1.
               88  ACM-DORMANT         VALUE 2.
               88  ACM-BLOCKED         VALUE 3 4.
               88  ACM-CLOSED          VALUE 9.
           05  ACM-DATES.
               10  ACM-OPENED          PIC 9(08) COMP-3.
               10  ACM-LAST-MOVEMENT   PIC 9(08) COMP-3.
               10  ACM-LAST-INTEREST   PIC 9(08) COMP-3.
               10  ACM-MATURITY        PIC 9(08) COMP-3.
           05  ACM-BALANCES.
               10  ACM-LEDGER-BAL      PIC S9(13)V99 COMP-3.
               10  ACM-AVAILABLE-BAL   PIC S9(13)V99 COMP-3.
               10  ACM-MIN-BAL-MTD     PIC S9(13)V99 COMP-3.
               10  ACM-ACCRUED-INT     PIC S9(11)V9(06) COMP-3.
           05  ACM-MONTH-STATS         OCCURS 12 TIMES.
               10  ACM-STAT-CREDITS    PIC S9(11)V99 COMP-3.
               10  ACM-STAT-DEBITS     PIC S9(11)V99 COMP-3.
               10  ACM-STAT-COUNT      PIC 9(05) COMP.
           05  ACM-TAX-CODE            PIC X(02).
               88  ACM-TAX-EXEMPT      VALUE "EX" "CH".
           05  FILLER                  PIC X(19).

      * Interest rates, one slot a product and band.
       FD  RATE-FILE.
       01  RATE-RECORD.
           05  RAT-PRODUCT             PIC X(04).
           05  RAT-EFFECTIVE           PIC 9(08).
           05  RAT-BAND-COUNT          PIC 9(02) COMP.
           05  RAT-BAND                OCCURS 6 TIMES.
               10  RAT-FROM-BAL        PIC 9(11)V99 COMP-3.
               10  RAT-ANNUAL-PCT      PIC S9(03)V9(05) COMP-3.
               10  RAT-BONUS-PCT       PIC SVPPP9(03) COMP-3.

      * Posting journal for print.
       FD  JOURNAL.
       01  JRNL-LINE                   PIC X(132).
       01  JRNL-HEADING.
           05  FILLER                  PIC X(10).
           05  JRH-TITLE               PIC X(60).
           05  JRH-DATE                PIC 9999/99/99.
           05  FILLER                  PIC X(40).
           05  JRH-PAGE                PIC ZZ,ZZ9.
           05  FILLER                  PIC X(06).
       01  JRNL-DETAIL.
           05  JRD-BRANCH              PIC 9(04).
           05  FILLER                  PIC X(01).
           05  JRD-SERIAL              PIC 9(07).
           05  FILLER                  PIC X(01).
           05  JRD-CODE                PIC Z9.
           05  FILLER                  PIC X(02).
           05  JRD-AMOUNT              PIC ---,---,--9.99.
           05  FILLER                  PIC X(02).
           05  JRD-NEW-BALANCE         PIC Z(3),Z(3),Z(3),ZZ9.99CR.
           05  FILLER                  PIC X(02).
           05  JRD-NARRATIVE           PIC X(35).
           05  JRD-FLAG                PIC X(01) OCCURS 5 TIMES.
           05  FILLER                  PIC X(36).

       FD  REJECT-FILE.
       01  REJECT-RECORD.
           05  REJ-REASON              PIC 9(03).
               88  REJ-NOT-FOUND       VALUE 100.
               88  REJ-BAD-STATUS      VALUE 200 THRU 299.
               88  REJ-OVERDRAWN       VALUE 300.
           05  REJ-RUN-STAMP           PIC X(14).
           05  REJ-IMAGE               PIC X(80).
      * The reasons beyond the first, as many as the run found.
           05  REJ-MORE                PIC 9(03)
               OCCURS 1 TO 10 TIMES DEPENDING ON WS-REASON-COUNT.

       WORKING-STORAGE SECTION.
       77  WS-REASON-COUNT             PIC 9(02) COMP VALUE 1.
       77  WS-RATE-SLOT                PIC 9(05) COMP VALUE 0.
       01  WS-FILE-STATUSES.
           05  WS-TXN-STATUS           PIC X(02).
               88  WS-TXN-OK           VALUE "00".
               88  WS-TXN-END          VALUE "10".
           05  WS-MAST-STATUS          PIC X(02).
               88  WS-MAST-OK          VALUE "00" "02".
               88  WS-MAST-NOT-FOUND   VALUE "23".
           05  WS-RATE-STATUS          PIC X(02).
           05  WS-JRNL-STATUS          PIC X(02).
           05  WS-REJ-STATUS           PIC X(02).
       01  WS-STATUS-TABLE REDEFINES WS-FILE-STATUSES.
           05  WS-STATUS-ENTRY         OCCURS 5 TIMES.
               10  WS-STATUS-CLASS     PIC X(01).
                   88  WS-CLASS-GOOD   VALUE "0".
                   88  WS-CLASS-FATAL  VALUE "3" "4" "9".
               10  WS-STATUS-DETAIL    PIC X(01).
       01  WS-SWITCHES.
           05  WS-END-OF-TXN           PIC X(01) VALUE "N".
               88  WS-NO-MORE-TXN      VALUE "Y" FALSE "N".
           05  WS-RERUN                PIC X(01) VALUE "N".
               88  WS-IS-RERUN         VALUE "Y".
       01  WS-RUN-DATE.
           05  WS-RUN-YEAR             PIC 9(04).
           05  WS-RUN-MONTH            PIC 9(02).
               88  WS-QUARTER-END      VALUE 3 6 9 12.
           05  WS-RUN-DAY              PIC 9(02).
           05  WS-RUN-TIME             PIC 9(08).
           66  WS-RUN-YYYYMMDD         RENAMES WS-RUN-YEAR
                                       THRU WS-RUN-DAY.
           66  WS-RUN-PERIOD           RENAMES WS-RUN-YEAR
                                       THRU WS-RUN-MONTH.
       01  WS-COUNTERS.
           05  WS-READ-COUNT           PIC 9(09) COMP SYNC VALUE 0.
           05  WS-POSTED-COUNT         PIC 9(09) COMP SYNC VALUE 0.
           05  WS-REJECT-COUNT         PIC 9(09) COMP SYNC VALUE 0.
           05  WS-PAGE-NO              PIC 9(04) COMP SYNC VALUE 0.
           05  WS-HASH-TOTAL           PIC 9(15) COMP SYNC VALUE 0.
       01  WS-AMOUNTS.
           05  WS-NET-AMOUNT           PIC S9(13)V99 COMP-3.
           05  WS-NEW-BALANCE          PIC S9(13)V99 COMP-3.
           05  WS-DAILY-FACTOR         COMP-2.
           05  WS-INTEREST             PIC S9(11)V9(06) COMP-3.
           05  WS-BAND-LIMIT           PIC 9(08)PPP COMP-3.
       01  WS-BRANCH-TOTALS.
           05  WS-BRANCH-USED          PIC 9(04) COMP VALUE 0.
           05  WS-BRANCH-ENTRY
               OCCURS 0 TO 250 TIMES DEPENDING ON WS-BRANCH-USED
               ASCENDING KEY IS WS-BR-NO
               INDEXED BY WS-BR-IX.
               10  WS-BR-NO            PIC 9(04).
               10  WS-BR-CREDITS       PIC S9(13)V99 COMP-3.
               10  WS-BR-DEBITS        PIC S9(13)V99 COMP-3.
               10  WS-BR-COUNT         PIC 9(07) COMP-3.

       PROCEDURE DIVISION.
       MAIN-LINE.
           PERFORM OPEN-FILES
           PERFORM READ-TXN
           PERFORM UNTIL WS-NO-MORE-TXN
               EVALUATE TRUE
                   WHEN TXD-IS-DETAIL
                       PERFORM POST-DETAIL
                   WHEN TXT-IS-TRAILER
                       PERFORM CHECK-TRAILER
                   WHEN OTHER
                       CONTINUE
               END-EVALUATE
               PERFORM READ-TXN
           END-PERFORM
           CLOSE TXN-FILE ACCT-MASTER RATE-FILE JOURNAL REJECT-FILE
           STOP RUN.

       OPEN-FILES.
           ACCEPT WS-RUN-YYYYMMDD FROM DATE YYYYMMDD
           ACCEPT WS-RUN-TIME FROM TIME
           OPEN INPUT TXN-FILE RATE-FILE
                I-O ACCT-MASTER
                OUTPUT JOURNAL REJECT-FILE
           IF NOT WS-TXN-OK OR NOT WS-MAST-OK
               DISPLAY "DEPINT01: CANNOT OPEN, STATUS "
                   WS-TXN-STATUS " " WS-MAST-STATUS
               MOVE 12 TO RETURN-CODE
               STOP RUN
           END-IF
           PERFORM PRINT-HEADING.

       PRINT-HEADING.
           ADD 1 TO WS-PAGE-NO
           MOVE SPACES TO JRNL-HEADING
           MOVE "SAVINGS DEPOSITS - POSTING JOURNAL" TO JRH-TITLE
           MOVE WS-RUN-YYYYMMDD TO JRH-DATE
           MOVE WS-PAGE-NO TO JRH-PAGE
           WRITE JRNL-HEADING.

       READ-TXN.
           READ TXN-FILE
               AT END
                   SET WS-NO-MORE-TXN TO TRUE
               NOT AT END
                   ADD 1 TO WS-READ-COUNT
           END-READ
           IF NOT WS-TXN-OK AND NOT WS-TXN-END
               DISPLAY "DEPINT01: READ ERROR " WS-TXN-STATUS
               MOVE 12 TO RETURN-CODE
               SET WS-NO-MORE-TXN TO TRUE
           END-IF.

      * Posts one detail; what is not on the master is rejected.
       POST-DETAIL.
           MOVE TXD-ACCT-NO TO ACM-ACCT-NO
           ADD TXD-SERIAL TO WS-HASH-TOTAL
           READ ACCT-MASTER
               INVALID KEY
                   MOVE 100 TO REJ-REASON
                   PERFORM WRITE-REJECT
               NOT INVALID KEY
                   PERFORM APPLY-AMOUNT
           END-READ.

       APPLY-AMOUNT.
           IF NOT ACM-OPEN
               MOVE 200 TO REJ-REASON
               PERFORM WRITE-REJECT
           ELSE
               ADD TXD-AMOUNT ACM-LEDGER-BAL GIVING WS-NEW-BALANCE
               PERFORM ACCRUE-INTEREST
               MOVE WS-NEW-BALANCE TO ACM-LEDGER-BAL
               MOVE WS-RUN-YYYYMMDD TO ACM-LAST-MOVEMENT
               REWRITE ACCT-RECORD
               ADD 1 TO WS-POSTED-COUNT
               PERFORM PRINT-DETAIL
           END-IF.

      * One day's interest on the ledger balance, at the rate of the
      * first band.
       ACCRUE-INTEREST.
           MOVE 1 TO WS-RATE-SLOT
           READ RATE-FILE
               INVALID KEY MOVE 0 TO WS-INTEREST
               NOT INVALID KEY
                   COMPUTE WS-DAILY-FACTOR =
                       RAT-ANNUAL-PCT (1) / 36500
                   COMPUTE WS-INTEREST ROUNDED =
                       ACM-LEDGER-BAL * WS-DAILY-FACTOR
           END-READ
           ADD WS-INTEREST TO ACM-ACCRUED-INT.

       PRINT-DETAIL.
           MOVE SPACES TO JRNL-DETAIL
           MOVE TXD-BRANCH TO JRD-BRANCH
           MOVE TXD-SERIAL TO JRD-SERIAL
           MOVE TXD-CODE TO JRD-CODE
           MOVE TXD-AMOUNT TO JRD-AMOUNT
           MOVE WS-NEW-BALANCE TO JRD-NEW-BALANCE
           MOVE TXD-NARRATIVE TO JRD-NARRATIVE
           WRITE JRNL-DETAIL.

       WRITE-REJECT.
           MOVE TXN-DETAIL TO REJ-IMAGE
           MOVE WS-RUN-YYYYMMDD TO REJ-RUN-STAMP
           MOVE 1 TO WS-REASON-COUNT
           MOVE REJ-REASON TO REJ-MORE (1)
           ADD 1 TO WS-REJECT-COUNT
           WRITE REJECT-RECORD.

       CHECK-TRAILER.
           IF TXT-HASH-TOTAL NOT = WS-HASH-TOTAL
               DISPLAY "DEPINT01: HASH TOTAL DIFFERS"
               MOVE 8 TO RETURN-CODE
           END-IF.
