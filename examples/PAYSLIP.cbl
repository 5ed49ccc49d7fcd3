      *****************************************************************
      * PAYSLIP  Payroll: gross to net and the monthly pay slip.
      *
      * Runs under a screen server that is written with classes: the
      * form object and the callback are handed over in the session
      * record. Names are kept in national characters. Old records of
      * the mainframe years are read as they were packed then.
      *****************************************************************
       IDENTIFICATION DIVISION.
       PROGRAM-ID. PAYSLIP.
       DATA DIVISION.
       WORKING-STORAGE SECTION.
       77  WS-MONTH-COUNT              PIC 9(04) COMP-5 VALUE 12.

      * Who works here.
       01  EMPLOYEE.
           05  EMP-NUMBER              PIC 9(07).
           05  EMP-NUMBER-X REDEFINES EMP-NUMBER
                                       PIC X(07).
           05  EMP-NAME.
               10  EMP-SURNAME         PIC N(30) USAGE NATIONAL.
               10  EMP-GIVEN-NAME      PIC N(20) USAGE NATIONAL.
               10  EMP-SORT-NAME       PIC N(10) USAGE DISPLAY.
           05  EMP-INITIALS            PIC A(04).
           05  EMP-COST-CENTRE         PIC X(10) JUSTIFIED RIGHT.
           05  EMP-CANTON              PIC X(12).
               88  EMP-GERMAN-SPEAKING VALUE "Zürich" "Bern"
                                             "Graubünden".
               88  EMP-FRENCH-SPEAKING VALUE "Genève" "Neuchâtel"
                                             "Vaud".
           05  EMP-GRADE               PIC X(03).
               88  EMP-GRADE-HOURLY    VALUE "H01" THRU "H12".
               88  EMP-GRADE-SALARIED  VALUE "S01" THRU "S20" "X00".
           05  EMP-MARITAL             PIC 9(01).
               88  EMP-SINGLE          VALUE 1.
               88  EMP-MARRIED         VALUE 2.
               88  EMP-OTHER-STATUS    VALUE 3 THRU 6.
           05  EMP-CHILDREN            PIC 9(02) COMP-X.
               88  EMP-NO-CHILDREN     VALUE 0.
           05  EMP-PERMIT              PIC X(01).
               88  EMP-TAX-AT-SOURCE   VALUE "B" "L" "G".
           05  EMP-DATES.
               10  EMP-BORN            PIC 9(08) COMP-6.
               10  EMP-JOINED          PIC 9(08) COMP-6.
               10  EMP-LEFT            PIC 9(07) COMP-6.
           05  EMP-BANK.
               10  EMP-IBAN.
                   15  EMP-IBAN-LAND   PIC X(02).
                   15  EMP-IBAN-CHECK  PIC 9(02).
                   15  EMP-IBAN-REST   PIC X(30).
               10  EMP-SPLIT-PCT       PIC 9(03)V9.
           66  EMP-IDENTITY            RENAMES EMP-NUMBER
                                       THRU EMP-INITIALS.
           66  EMP-ACCOUNT             RENAMES EMP-IBAN.
           66  EMP-SPLIT               RENAMES EMP-SPLIT-PCT.

      * The screen session that asks for the slip.
       01  SESSION.
           05  SES-ID                  PIC X(05).
           05  SES-FORM                USAGE OBJECT REFERENCE.
           05  SES-PRINTER             USAGE OBJECT REFERENCE.
           05  SES-CALLBACK            USAGE PROCEDURE-POINTER.
           05  SES-BUFFER              USAGE POINTER SYNC.
           05  SES-STATE               PIC X(01).
               88  SES-ACTIVE          VALUE "A".
           05  SES-BUFFER-LENGTH       PIC 9(09) COMP-5 SYNC.
           05  SES-FLAGS               PIC X(03).
           05  SES-CURSOR              USAGE INDEX SYNC.
           05  SES-LINE-MARK           USAGE INDEX.
           05  SES-HANDLE              PIC X(04) COMP-X.

      * Pay elements, each in the form in which it was first kept.
       01  PAY-ELEMENTS.
           05  PE-BASIC                PIC S9(07)V99 COMP-3.
           05  PE-BONUS                PIC S9(07)V99
                                       SIGN LEADING.
           05  PE-CORRECTION           PIC S9(07)V99
                                       SIGN LEADING SEPARATE.
           05  PE-ADVANCE              PIC S9(07)V99
                                       SIGN TRAILING.
           05  PE-GARNISHMENT          PIC S9(07)V99
                                       SIGN TRAILING SEPARATE.
           05  PE-BALANCE              PIC S9(07)V99.
           05  PE-HOURS                PIC 9(03)V99.
           05  PE-OVERTIME             PIC S9(04) COMP.
           05  PE-NIGHT-MINUTES        PIC 9(09) COMP-4.
           05  PE-YEAR-MINUTES         PIC S9(12) BINARY.
           05  PE-HOLIDAYS             PIC S9(03)V9 COMP-5.
           05  PE-HOLIDAYS-LEFT        PIC S9(09)V99 COMP-5.
           05  PE-PENSION-BASE         PIC S9(15)V99 PACKED-DECIMAL.
           05  PE-PENSION-FACTOR       COMP-1.
           05  PE-INDEX-FACTOR         COMP-2.
           05  PE-ANNUITY              PIC +9(03).9(04)E+99.
           05  PE-PENSION-FUND         PIC 9(04)PPP COMP-3.
           05  PE-MICRO-RATE           PIC VPPP9(04).
           05  PE-COUNTER              PIC 9(03) COMP-X.
           05  PE-SHIFT-COUNT          PIC 9(05) COMP-X.
           05  PE-CARD-READS           PIC 9(09) COMP-X.
           05  PE-CARD-SERIAL          PIC 9(12) COMP-X.
           05  PE-DOOR-MASK            PIC X(02) COMP-X.
           05  PE-TIMES.
               10  PE-LATE             PIC X(01).
               10  PE-SHORT-SYNC       PIC S9(04) COMP SYNC.
               10  FILLER              PIC X(01).
               10  PE-WORD-SYNC        PIC S9(09) COMP SYNC.
               10  FILLER              PIC X(01).
               10  PE-LONG-SYNC        PIC S9(18) COMP SYNC.
               10                      PIC X(01).
               10  PE-FLOAT-SYNC       COMP-1 SYNC.
               10  FILLER              PIC X(01).
               10  PE-DOUBLE-SYNC      COMP-2 SYNC.

      * Wage types of the month, with slack behind each.
       01  WAGE-TYPES.
           05  WT-COUNT                PIC 9(02).
           05  WT-ENTRY                OCCURS 1 TO 40 TIMES
               DEPENDING ON WT-COUNT.
               10  WT-CODE             PIC X(04).
                   88  WT-EARNING      VALUE "1000" THRU "4999".
                   88  WT-DEDUCTION    VALUE "5000" THRU "5999"
                                             "6100".
               10  WT-AMOUNT           PIC S9(09)V99 COMP SYNC.
               10  WT-RATE             PIC S9(03)V9(02) COMP-3.
               10  WT-TEXT             PIC X(21).
                   88  WT-FREE-TEXT    VALUE SPACES.

      * A record of the years before 1999, and what it means.
       01  OLD-RECORD.
           05  OLD-KEY                 PIC X(06).
           05  OLD-BODY.
               10  OLD-GROSS           PIC S9(05)V99 COMP-3.
               10  OLD-TAX             PIC S9(05)V99 COMP-3.
               10  FILLER              PIC X(22).
           05  OLD-HOURLY REDEFINES OLD-BODY.
               10  OLD-HOURS           PIC S9(03)V9 COMP-3
                                       OCCURS 5 TIMES.
               10  OLD-RATE            PIC 9(03)V99.
               10  FILLER              PIC X(09).
           05  FILLER REDEFINES OLD-BODY.
               10  OLD-QUARTER         OCCURS 4 TIMES.
                   15  OLD-Q-GROSS     PIC S9(05) COMP-3.
                   15  OLD-Q-TAX       PIC S9(05) COMP-3.
               10  FILLER              PIC X(06).
           05  OLD-END                 PIC X(02).

      * The slip as it is printed.
       01  SLIP-LINES.
           05  SL-HEAD.
               10  SL-FULL-NAME.
                   15  SL-SURNAME      PIC N(30) USAGE NATIONAL.
                   15  SL-GIVEN-NAME   PIC N(20) USAGE NATIONAL.
               10  SL-MONTH            PIC Z9/9999.
               10  SL-NUMBER           PIC 9B999B999.
           05  SL-BODY                 OCCURS 20 TIMES.
               10  SL-TEXT             PIC X(30).
               10  SL-QUANTITY         PIC ZZ9.99 BLANK WHEN ZERO.
               10  SL-RATE             PIC ZZ,ZZ9.9999
                                       BLANK WHEN ZERO.
               10  SL-AMOUNT           PIC Z,ZZZ,ZZ9.99-.
           05  SL-FOOT.
               10  SL-GROSS            PIC +,+++,++9.99.
               10  SL-DEDUCTIONS       PIC Z(06)9.99DB.
               10  SL-NET              PIC $*,***,**9.99.
               10  SL-LEAVE            PIC ---9.9.

       LINKAGE SECTION.
       01  LK-SESSION-POINTER          USAGE POINTER.
       01  LK-EMPLOYEE-NO              PIC 9(09) COMP-5.
       01  LK-PERIOD.
           05  LK-PERIOD-YEAR          PIC 9(04).
           05  LK-PERIOD-MONTH         PIC 9(02).
               88  LK-REGULAR-MONTH    VALUE 1 THRU 12.
               88  LK-THIRTEENTH       VALUE 13.

       PROCEDURE DIVISION USING BY VALUE LK-SESSION-POINTER
                                BY VALUE LK-EMPLOYEE-NO
                                BY REFERENCE LK-PERIOD.
       MAKE-SLIP.
           IF NOT LK-REGULAR-MONTH AND NOT LK-THIRTEENTH
               MOVE 16 TO RETURN-CODE
               GOBACK
           END-IF
           SET SES-BUFFER TO LK-SESSION-POINTER
           MOVE LK-EMPLOYEE-NO TO EMP-NUMBER
           INITIALIZE PAY-ELEMENTS
           PERFORM COMPUTE-GROSS
           PERFORM COMPUTE-PENSION
           PERFORM PRINT-SLIP
           MOVE 0 TO RETURN-CODE
           GOBACK.

       COMPUTE-GROSS.
           COMPUTE PE-BALANCE = PE-BASIC + PE-BONUS + PE-CORRECTION
               - PE-ADVANCE - PE-GARNISHMENT
           MOVE 0 TO WT-COUNT
           IF EMP-GRADE-HOURLY
               ADD 1 TO WT-COUNT
               MOVE "1000" TO WT-CODE (WT-COUNT)
               COMPUTE WT-AMOUNT (WT-COUNT) ROUNDED =
                   PE-HOURS * WT-RATE (WT-COUNT)
               ADD WT-AMOUNT (WT-COUNT) TO PE-BALANCE
           END-IF.

      * A thirteenth month bears no pension contribution.
       COMPUTE-PENSION.
           IF LK-THIRTEENTH
               MOVE 0 TO PE-PENSION-BASE
           ELSE
               COMPUTE PE-PENSION-BASE =
                   PE-BALANCE * WS-MONTH-COUNT * PE-INDEX-FACTOR
           END-IF.

       PRINT-SLIP.
           MOVE EMP-NAME TO SL-FULL-NAME
           MOVE EMP-NUMBER TO SL-NUMBER
           COMPUTE SL-MONTH =
               LK-PERIOD-MONTH * 10000 + LK-PERIOD-YEAR
           MOVE PE-BALANCE TO SL-GROSS SL-NET
           MOVE PE-GARNISHMENT TO SL-DEDUCTIONS
           MOVE PE-HOLIDAYS-LEFT TO SL-LEAVE
           DISPLAY SLIP-LINES.
